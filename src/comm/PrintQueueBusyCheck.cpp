#include "PrintQueueBusyCheck.h"

#include "InfoList.h"
#include "Log.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr QByteArrayView processing{"4"};

bool removesHyphens(BusyCheckVariant variant)
{
    return variant == BusyCheckVariant::ManualEntry;
}

bool writesLog(BusyCheckVariant variant)
{
    return variant == BusyCheckVariant::List;
}

/// The name of a queue as text; absent when it is not ASCII. A queue with such a name matches no printer.
std::optional<QString> asciiText(const QByteArray &name)
{
    const bool isAscii = std::all_of(name.cbegin(), name.cend(), [](char byte) { return !(byte & 0x80); });
    return isAscii ? std::optional{QString::fromLatin1(name)} : std::nullopt;
}

} // namespace

QString printQueueMatchKey(const QString &printerType, const QString &vendor, BusyCheckVariant variant)
{
    QString key = printerType;
    key.remove(u' ');
    if (removesHyphens(variant))
        key.remove(u'-');
    if (const qsizetype series = key.indexOf("series"_L1); series >= 0)
        key.truncate(series);
    const QString vendorWord = vendor.toLower();
    if (const qsizetype last = key.lastIndexOf(vendorWord); !vendorWord.isEmpty() && last >= 0)
        key.remove(0, last + vendorWord.size());
    return key;
}

bool isWorking(const std::vector<PrintDestination> &destinations, const QString &printerType, const QString &vendor,
               BusyCheckVariant variant)
{
    const QString key = printQueueMatchKey(printerType, vendor, variant);
    for (const PrintDestination &destination : destinations) {
        const auto name = asciiText(destination.name);
        if (writesLog(variant))
            logInfo("打印机正在打印中,当前打印机为%@", name);
        const bool matches = !key.isEmpty() && name && name->contains(key, Qt::CaseInsensitive);
        if (matches && destination.printerState == processing) {
            if (writesLog(variant))
                logInfo("打印机正在打印中");
            return true;
        }
    }
    return false;
}

bool isWorkingWithPrintType(SpoolerPort &spooler, const QString &printerType, BusyCheckVariant variant)
{
    if (writesLog(variant))
        logInfo("查看本地是否有打印作业,打印机名称%@", printerType);
    return isWorking(spooler.destinations(), printerType, InfoList::value(u"Vendor"_s).value_or(QString()), variant);
}
