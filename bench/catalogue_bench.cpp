/// How long the model catalogue takes to be read and to be searched, for a growing number of models. Prints a Markdown
/// table.
#include "ModelCatalogue.h"
#include "Samples.h"
#include "timesToRepeat.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryFile>
#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace
{

const std::size_t rounds = timesToRepeat(21);

QString modelName(int number)
{
    return u"QZ%1W"_s.arg(number + 1000);
}

QByteArray catalogueOf(int count)
{
    QJsonArray models;
    for (int number = 0; number < count; ++number)
        models.append(QJsonObject{{u"device_name"_s, modelName(number)}, {u"supportWifi"_s, 1}, {u"isOldACL"_s, 0}});
    return QJsonDocument(QJsonObject{{u"printer_info"_s, models}}).toJson();
}

template <typename Call>
double medianMilliseconds(const Call &call)
{
    Samples samples(rounds);
    for (std::size_t round = 0; round < rounds; ++round)
        samples.measure(call);
    samples.sort();
    return samples.percentile(0.5) / 1000;
}

bool measure(int count)
{
    QTemporaryFile file;
    if (!file.open() || file.write(catalogueOf(count)) < 0 || !file.flush())
        return false;
    const auto catalogue = ModelCatalogue::read(file.fileName());
    const QString last = modelName(count - 1);
    if (!catalogue || !catalogue.value().isWifiPrinter(last))
        return false;
    bool found = true;
    const double read = medianMilliseconds([&] { found = found && bool(ModelCatalogue::read(file.fileName())); });
    const double known = medianMilliseconds([&] { found = found && catalogue.value().isVaildFile(last); });
    const double wifi = medianMilliseconds([&] { found = found && catalogue.value().isWifiPrinter(last); });
    std::printf("| %d | %.3f | %.3f | %.3f |\n", count, read, known, wifi);
    return found;
}

} // namespace

int main()
{
    std::printf("Milliseconds to read a catalogue and to find its last model; the median of %zu times.\n\n"
                "| models | read | is it known | has it Wi-Fi |\n|---|---|---|---|\n",
                rounds);
    for (const int count : {10, 30, 100, 300, 1000, 3000, 10000, 30000, 100000}) {
        if (!measure(count))
            return 1;
    }
    return 0;
}
