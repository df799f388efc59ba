#include "ReportDelivery.h"

#include "WTLog.h"

#include <algorithm>
#include <chrono>
#include <thread>

using namespace std::chrono_literals;

namespace
{

using Clock = std::chrono::steady_clock;

/// The report on its way to one logger. Whoever comes first writes it: the logger's queue or the reporting thread.
class Parcel
{
public:
    Parcel(const WTLoggerNode &logger, const WTLogMessage &report)
        : m_logger(logger)
        , m_report(report)
    {
    }

    void open()
    {
        if (m_isOpened.exchange(true))
            return;
        m_logger.logger->logMessage(m_report);
        m_isWritten = true;
    }
    bool isWritten() const { return m_isWritten; }
    const SerialQueue &queue() const { return *m_logger.loggerQueue; }

private:
    const WTLoggerNode m_logger;
    const WTLogMessage m_report;
    std::atomic<bool> m_isOpened = false;
    std::atomic<bool> m_isWritten = false;
};

/// Waits until `condition` holds: as long as the queue gets on with its jobs, but no longer than three seconds.
template <typename Condition>
void waitFor(const SerialQueue &queue, Condition &&condition)
{
    constexpr auto longestJob = 1s, longestWait = 3s;
    const auto start = Clock::now();
    auto lastProgress = start;
    for (quint64 jobsRun = queue.jobsRun(); !condition(); std::this_thread::sleep_for(1ms)) {
        const auto now = Clock::now();
        if (std::exchange(jobsRun, queue.jobsRun()) != queue.jobsRun())
            lastProgress = now;
        if (now - lastProgress > longestJob || now - start > longestWait)
            return;
    }
}

/// So that what was logged before the crash stands ahead of its report.
void waitUntilReached(SerialQueue &queue)
{
    const auto isReached = std::make_shared<std::atomic<bool>>(false);
    queue.async([isReached] { *isReached = true; });
    waitFor(queue, [&] { return isReached->load(); });
}

} // namespace

void ReportDelivery::deliver(const std::vector<WTLoggerNode> &loggers, const WTLogMessage &report, qint64 crashedThread)
{
    const auto hasCrashed = [&](const WTLoggerNode &node) { return node.loggerQueue->runsOnThread(crashedThread); };
    SerialQueue &loggingQueue = WTLog::loggingQueue();
    // The logging queue waits for its loggers: when one of them has crashed, the queue stands still, too.
    if (!loggingQueue.runsOnThread(crashedThread) && std::ranges::none_of(loggers, hasCrashed))
        waitUntilReached(loggingQueue);

    std::vector<std::shared_ptr<Parcel>> parcels;
    for (const WTLoggerNode &node : loggers) {
        if (!node.admits(report))
            continue;
        const auto parcel = parcels.emplace_back(std::make_shared<Parcel>(node, report));
        if (!hasCrashed(node))
            node.loggerQueue->async([parcel] { parcel->open(); });
    }
    for (const auto &parcel : parcels) {
        if (!parcel->queue().runsOnThread(crashedThread))
            waitFor(parcel->queue(), [&] { return parcel->isWritten(); });
    }
    for (const auto &parcel : parcels)
        parcel->open();
}
