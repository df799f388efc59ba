#include "PrintQueueBusyCheck.h"

#include "AlternateSignalStack.h"
#include "InfoList.h"
#include "Log.h"

#include <algorithm>
#include <chrono>
#include <future>
#include <thread>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace
{

constexpr QByteArrayView processing{"4"};
constexpr auto longestWait = 2s;

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

void sayOnceWhatIsMissing(SpoolerPort &spooler)
{
    static const bool isSaid = [&spooler] {
        if (const auto problem = spooler.problem())
            logWarning("Whether a printer is printing cannot be asked: %@", problem->message);
        return true;
    }();
    (void)isSaid;
}

/// Absent when the spooler takes too long. The question then stays under way on its thread, and no second one is put
/// until it has ended.
std::optional<std::vector<PrintDestination>> answerInTime(SpoolerPort &spooler)
{
    static std::future<std::vector<PrintDestination>> answer;
    const auto isThere = [](std::chrono::seconds within) {
        return answer.wait_for(within) == std::future_status::ready;
    };
    // An answer that came after its question had been given up is out of date.
    if (!answer.valid() || isThere(0s)) {
        std::promise<std::vector<PrintDestination>> promise;
        answer = promise.get_future();
        std::thread([&spooler, promise = std::move(promise)]() mutable {
            const AlternateSignalStack signalStack;
            promise.set_value(spooler.destinations());
        }).detach();
    }
    return isThere(longestWait) ? std::optional(answer.get()) : std::nullopt;
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
    const auto destinations = answerInTime(spooler);
    if (!destinations) {
        logWarning("The print spooler has not answered for %ld s; the printer counts as idle.", longestWait.count());
        return false;
    }
    if (destinations->empty())
        sayOnceWhatIsMissing(spooler);
    return isWorking(*destinations, printerType, InfoList::value(u"Vendor"_s).value_or(QString()), variant);
}
