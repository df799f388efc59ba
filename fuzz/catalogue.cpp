/// The model catalogue: the first line is a printer's name, the rest the file.
#include "Fuzz.h"
#include "JsonInteger.h"
#include "ModelCatalogue.h"
#include "isSafe.h"
#include "wtc_extractPrinterType.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <sys/mman.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;
using Fuzz::require;

namespace
{

/// A file in memory that has a path.
class MemoryFile
{
public:
    explicit MemoryFile(QByteArrayView contents)
        : m_descriptor(memfd_create("catalogue", MFD_CLOEXEC))
    {
        require(write(m_descriptor, contents.data(), std::size_t(contents.size())) == contents.size(),
                "memory is there");
    }
    ~MemoryFile() { close(m_descriptor); }
    MemoryFile(const MemoryFile &) = delete;
    MemoryFile &operator=(const MemoryFile &) = delete;

    QString path() const { return u"/proc/self/fd/%1"_s.arg(m_descriptor); }

private:
    const int m_descriptor;
};

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
    const MemoryFile file(contents);
    const auto catalogue = ModelCatalogue::read(file.path());
    if (!catalogue) {
        require(catalogue.error().message.startsWith(file.path()), "a fault names the file");
        return 0;
    }
    checkName(catalogue.value(), name);
    for (const auto &entry : catalogue.value().entries())
        checkEntry(catalogue.value(), entry);
    return 0;
}
