#include "CrashReporter.h"

#include "CrashReport.h"
#include "WTLog.h"

#include <atomic>
#include <chrono>
#include <csignal>
#include <ctime>
#include <malloc.h>
#include <pthread.h>
#include <semaphore.h>
#include <thread>
#include <unistd.h>
#include <utility>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace
{

using Clock = std::chrono::steady_clock;

constexpr auto longestWait = 5s;

/// Room for one crash on its way to the reporting thread. Never destroyed.
struct Mailbox {
    enum class State { Empty, BeingFilled, Filled };

    std::atomic<State> state = State::Empty;
    Crash crash;
    quint64 number = 0;
    sem_t filled{};
    /// The number of the last crash whose report is done. Crashes are numbered in the order they were handed over.
    std::atomic<quint64> reported = 0;
    std::atomic<qint64> reportingThread = 0;
};

Mailbox &mailbox()
{
    static auto *const box = new Mailbox;
    return *box;
}

void writeReport(const Crash &crash)
{
    const QString report = crashReportText(crash, std::chrono::system_clock::now());
    // A fixed place instead of this one, so that a search for it finds the reports of every version of the program.
    const WTLogMessage::Place place{"WTExceptionHandler", "void HandleException(NSException *__strong)", 141};
    const auto message = WTLogMessage::initWithFormat(u"崩溃信息：%@"_s, {FormatArgument(report)}, WTLogLevelAll,
                                                      WTLogFlagError, 0, place, {}, 0, std::nullopt);
    const WTLogMessage::Caller caller{crash.systemThread, crash.threadName, crash.queueLabel};
    WTLog::deliverReport(message.spokenBy(caller), crash.systemThread);
}

void reportForEver()
{
    Mailbox &box = mailbox();
    box.reportingThread = gettid();
    pthread_setname_np(pthread_self(), "crash-report");
    for (;;) {
        while (sem_wait(&box.filled) != 0) {
        }
        const Crash crash = std::exchange(box.crash, {});
        const quint64 number = box.number;
        box.state = Mailbox::State::Empty;
        writeReport(crash);
        box.reported = number;
    }
}

/// Gives every thread an arena of its own; by default the allocator lets threads share arenas when there are many.
void keepArenasApart()
{
    constexpr int mostThreads = 1000;
    mallopt(M_ARENA_MAX, mostThreads);
}

/// Looks at `condition` every millisecond until it holds or the deadline has passed.
template <typename Condition>
bool waitFor(Condition &&condition, Clock::time_point deadline)
{
    while (!condition()) {
        if (Clock::now() >= deadline)
            return false;
        const timespec pause{0, 1'000'000};
        nanosleep(&pause, nullptr);
    }
    return true;
}

} // namespace

namespace CrashReporter
{

void start()
{
    keepArenasApart();
    sem_init(&mailbox().filled, 0, 0);
    // The thread inherits a mask that blocks every signal, so that signals are handled on the other threads.
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    std::thread(reportForEver).detach();
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

void report(const Crash &crash)
{
    Mailbox &box = mailbox();
    if (crash.systemThread == box.reportingThread)
        return;
    const auto deadline = Clock::now() + longestWait;
    const auto takeBox = [&] {
        auto expected = Mailbox::State::Empty;
        return box.state.compare_exchange_strong(expected, Mailbox::State::BeingFilled);
    };
    if (!waitFor(takeBox, deadline))
        return;
    box.crash = crash;
    const quint64 number = ++box.number;
    box.state = Mailbox::State::Filled;
    sem_post(&box.filled);
    waitFor([&] { return box.reported >= number; }, deadline);
}

} // namespace CrashReporter
