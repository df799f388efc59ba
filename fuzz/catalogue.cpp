/// The model catalogue: the first line is a printer's name, the rest the file.
#include "Fuzz.h"
#include "JsonInteger.h"
#include "ModelCatalogue.h"
#include "ScratchFolder.h"
#include "isSafe.h"
#include "wtc_extractPrinterType.h"

#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::Literals::StringLiterals;
using Fuzz::require;

namespace
{

void checkName(const ModelCatalogue &catalogue, const QString &name)
{
    const QString designation = wtc_extractPrinterType(name);
    require(wtc_extractPrinterType(designation) == designation, "a designation is its own designation");
    require(name.contains(designation), "a designation stands in the name");
    require(!catalogue.modelNamed(name) || catalogue.isVaildFile(name), "a model of that very name is known");
    require(catalogue.isWifiPrinter(name) == catalogue.isWifiPrinter(designation), "the designation decides on Wi-Fi");
    require(catalogue.oldAclPrinter(name) == catalogue.oldAclPrinter(designation),
            "the designation decides the dialect");
    if (catalogue.entries().isEmpty())
        require(catalogue.isVaildFile(name) && catalogue.isWifiPrinter(name), "an empty catalogue refuses nobody");
}

void checkEntry(const ModelCatalogue &catalogue, const QJsonValue &entry)
{
    const QString name = entry["device_name"_L1].toString();
    if (isSafe(name)) {
        checkName(catalogue, name);
        require(catalogue.modelNamed(name).has_value(), "every named entry is found");
    }
    const qint64 number = jsonInteger(entry["supportWifi"_L1]);
    require(jsonInteger(QString::number(number)) == number, "an integer survives as text");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    const auto [line, contents] = Fuzz::splitAt(Fuzz::view(bytes, size), '\n');
    const QString name = QString::fromUtf8(line);
    static const ScratchFolder folder;
    const QString path = folder.path() + u"/models.json"_s;
    folder.write(u"models.json"_s, contents);
    const auto catalogue = ModelCatalogue::read(path);
    if (!catalogue) {
        require(catalogue.error().message.startsWith(path), "a fault names the file");
        return 0;
    }
    checkName(catalogue.value(), name);
    for (const auto &entry : catalogue.value().entries())
        checkEntry(catalogue.value(), entry);
    return 0;
}
