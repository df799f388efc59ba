/// What a line of the log costs the program, beside spdlog's asynchronous rotating logger: the same line, to the same
/// folder, in turns within one run. Prints Markdown tables.
#include "JournalStub.h"
#include "Log.h"
#include "Samples.h"
#include "WTFileLogger.h"
#include "WTLogFileManagerDefault.h"
#include "WTLogFormatter.h"
#include "WTOSLogger.h"
#include "timesToRepeat.h"

#include <QTemporaryDir>
#include <cstdio>
#include <spdlog/async.h>
#include <spdlog/sinks/rotating_file_sink.h>
#include <spdlog/sinks/systemd_sink.h>
#include <spdlog/spdlog.h>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr std::size_t maximumFileSize = 0x6400000, maximumNumberOfFiles = 7;
const std::size_t burst = timesToRepeat(100000), idleCalls = timesToRepeat(2000), rounds = timesToRepeat(5);
/// As many as spdlog's queue takes without letting its callers wait.
const std::size_t smallBurst = timesToRepeat(8000), smallBursts = timesToRepeat(10);

enum class Sinks { File, FileAndJournal };

/// The program's log with the program's settings.
class OwnLog
{
public:
    OwnLog(const QString &folder, Sinks sinks)
    {
        const auto manager = std::make_shared<WTLogFileManagerDefault>(folder + u"/own"_s);
        manager->setMaximumNumberOfLogFiles(maximumNumberOfFiles);
        const auto logger = std::make_shared<WTFileLogger>(manager);
        logger->setMaximumFileSize(maximumFileSize);
        logger->setLogFormatter(std::make_shared<WTLogFormatter>());
        WTLog::addLogger(logger);
        if (sinks == Sinks::FileAndJournal)
            WTLog::addLogger(WTOSLogger::sharedInstance());
        log(0);
        waitUntilWritten();
    }
    ~OwnLog()
    {
        WTLog::removeAllLoggers();
        waitUntilWritten();
    }
    OwnLog(const OwnLog &) = delete;
    OwnLog &operator=(const OwnLog &) = delete;

    void log(std::size_t number) const { logInfo("send ACL:0x%X, uri:%@, attempt:%lu", 0xFF21, m_uri, number); }
    static void waitUntilWritten() { static_cast<void>(WTLog::allLoggers()); }

private:
    const QString m_uri = u"usb://Quillmark/QZ100?serial=4711"_s;
};

/// spdlog as it comes: a queue of 8192 lines, whose callers wait when it is full, and one thread behind it.
class Spdlog
{
public:
    Spdlog(const QString &folder, Sinks sinks, spdlog::level::level_enum flushed)
        : m_pool(std::make_shared<spdlog::details::thread_pool>(spdlog::details::default_async_q_size, 1))
    {
        auto file = std::make_shared<spdlog::sinks::rotating_file_sink_mt>((folder + u"/spdlog.log"_s).toStdString(),
                                                                           maximumFileSize, maximumNumberOfFiles);
        file->set_pattern("[%Y-%m-%d %H:%M:%S.%e TID:%6t] 🟢 %v");
        std::vector<spdlog::sink_ptr> targets{file};
        if (sinks == Sinks::FileAndJournal)
            targets.push_back(std::make_shared<spdlog::sinks::systemd_sink_mt>());
        m_logger = std::make_shared<spdlog::async_logger>("bench", targets.begin(), targets.end(), m_pool,
                                                          spdlog::async_overflow_policy::block);
        m_logger->flush_on(flushed);
        log(0);
        waitUntilWritten();
    }

    void log(std::size_t number) const { m_logger->info("send ACL:0x{:X}, uri:{}, attempt:{}", 0xFF21, m_uri, number); }
    void waitUntilWritten() const
    {
        while (m_pool->queue_size() > 0)
            std::this_thread::yield();
    }

private:
    const std::string m_uri = "usb://Quillmark/QZ100?serial=4711";
    std::shared_ptr<spdlog::details::thread_pool> m_pool;
    std::shared_ptr<spdlog::async_logger> m_logger;
};

struct Contender {
    Samples idle{idleCalls * rounds};
    Samples inSmallBursts{smallBurst * smallBursts * rounds};
    Samples firstBurst{burst};
    Samples laterBursts{burst * rounds};
};

/// Lets every thread of the logger fall asleep, as they are when a person uses the program.
void rest()
{
    std::this_thread::sleep_for(std::chrono::microseconds(300));
}

template <typename Log>
void measureIdle(const Log &log, Samples &samples)
{
    for (std::size_t number = 0; number < idleCalls; ++number) {
        log.waitUntilWritten();
        rest();
        samples.measure([&] { log.log(number); });
    }
}

template <typename Log>
void measureBurst(const Log &log, std::size_t calls, Samples &samples)
{
    log.waitUntilWritten();
    rest();
    samples.beginStretch();
    for (std::size_t number = 0; number < calls; ++number)
        samples.measure([&] { log.log(number); });
    samples.endStretch();
    log.waitUntilWritten();
}

template <typename Log>
void measureCalls(const Log &log, Contender &contender, std::size_t round)
{
    if (round == 0)
        measureBurst(log, burst, contender.firstBurst);
    measureIdle(log, contender.idle);
    for (std::size_t turn = 0; turn < smallBursts; ++turn)
        measureBurst(log, smallBurst, contender.inSmallBursts);
    measureBurst(log, burst, contender.laterBursts);
}

template <typename Log>
double linesPerSecond(const Log &log)
{
    const auto start = std::chrono::steady_clock::now();
    for (std::size_t number = 0; number < burst; ++number)
        log.log(number);
    log.waitUntilWritten();
    return static_cast<double>(burst) / std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void printCell(double own, double spdlog)
{
    std::printf(" %.2f | %.2f | %.2f |", own, spdlog, own / spdlog);
}

void printCalls(const char *name, Samples &own, Samples &spdlog)
{
    own.sort();
    spdlog.sort();
    std::printf("| %s |", name);
    for (const double share : {0.5, 0.99, 1.0})
        printCell(own.percentile(share), spdlog.percentile(share));
    printCell(own.longestUndisturbed(), spdlog.longestUndisturbed());
    std::printf(" %ld | %ld |\n", own.waits(), spdlog.waits());
}

void printThroughput(const char *name, double own, double spdlog, double spdlogFlushing)
{
    std::printf("| %s | %.0f | %.0f | %.2f | %.0f | %.2f |\n", name, own, spdlogFlushing, own / spdlogFlushing, spdlog,
                own / spdlog);
}

double median(std::vector<double> values)
{
    std::ranges::sort(values);
    return values[values.size() / 2];
}

void compareThroughput(const char *name, const QString &folder, Sinks sinks)
{
    std::vector<double> own, spdlog, spdlogFlushing;
    for (std::size_t round = 0; round < rounds; ++round) {
        own.push_back(linesPerSecond(OwnLog(folder, sinks)));
        spdlog.push_back(linesPerSecond(Spdlog(folder, sinks, spdlog::level::off)));
        spdlogFlushing.push_back(linesPerSecond(Spdlog(folder, sinks, spdlog::level::info)));
    }
    printThroughput(name, median(own), median(spdlog), median(spdlogFlushing));
}

} // namespace

int main()
{
    const JournalStub journal;
    const QTemporaryDir folder;
    Contender own, spdlog;
    for (std::size_t round = 0; round < rounds; ++round) {
        measureCalls(OwnLog(folder.path(), Sinks::File), own, round);
        measureCalls(Spdlog(folder.path(), Sinks::File, spdlog::level::off), spdlog, round);
    }
    std::printf("Microseconds that a call takes of its caller's thread. Undisturbed: the system gave the processor to\n"
                "nobody else meanwhile. Waits: how often the thread slept in a call.\n\n");
    std::printf(
        "| caller | p50 | spdlog | ratio | p99 | spdlog | ratio | max | spdlog | ratio | undisturbed max | spdlog "
        "| ratio | waits | spdlog |\n|---|---|---|---|---|---|---|---|---|---|---|---|---|---|---|\n");
    printCalls("idle", own.idle, spdlog.idle);
    printCalls("50 bursts of 8,000", own.inSmallBursts, spdlog.inSmallBursts);
    printCalls("first burst of 100,000", own.firstBurst, spdlog.firstBurst);
    printCalls("5 later bursts of 100,000", own.laterBursts, spdlog.laterBursts);
    std::printf("\nLines per second until the last of %zu is written; the median of %zu turns.\n\n", burst, rounds);
    std::printf("| destination | lines/s | spdlog, each line flushed | ratio | spdlog, buffered | ratio |\n"
                "|---|---|---|---|---|---|\n");
    compareThroughput("file", folder.path(), Sinks::File);
    if (journal.isThere())
        compareThroughput("file and system log", folder.path(), Sinks::FileAndJournal);
    else
        std::printf("\nNo journal, and no right to stand in for one: file and system log not measured.\n");
    return 0;
}
