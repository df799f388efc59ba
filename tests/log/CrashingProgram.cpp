// A program that crashes on command, for the tests of the crash capture: crashing-program CRASH STATE [FOLDER]
// Every line of its log goes to standard output, and to a log file in FOLDER. A program that outlives its crash says so
// and ends with status 7.

#include "DescriptorSource.h"
#include "HeapCrashes.h"
#include "Log.h"
#include "WTAbstractLogger.h"
#include "WTFileLogger.h"
#include "WTLogFileManagerDefault.h"
#include "WTLogFormatter.h"

#include <QCoreApplication>
#include <barrier>
#include <csignal>
#include <cstdio>
#include <functional>
#include <glib.h>
#include <map>
#include <mutex>
#include <optional>
#include <semaphore>
#include <stdexcept>
#include <string>
#include <sys/eventfd.h>
#include <sys/mman.h>
#include <thread>
#include <unistd.h>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr int outlivedStatus = 7;

void print(const QByteArray &line)
{
    if (write(STDOUT_FILENO, line.constData(), static_cast<size_t>(line.size())) < 0)
        std::_Exit(9);
}

/// Prints the lines, and runs an action inside the message "now" or inside the first report.
class PrintingLogger : public WTAbstractLogger
{
public:
    void logMessage(const WTLogMessage &message) override
    {
        const std::lock_guard lock(m_lock);
        const bool isReport = message.message().startsWith(u"崩溃信息：");
        const auto action = std::exchange(isReport ? duringReport : duringMessage, {});
        if (action)
            action();
        print(WTLogFormatter().formatLogMessage(message)->toUtf8() + '\n');
    }
    void flush() override { print("flushed\n"); }

    std::function<void()> duringMessage;
    std::function<void()> duringReport;

private:
    std::mutex m_lock;
};

volatile int zero = 0;
volatile int dividend = 1;
volatile int *volatile nowhere = nullptr;

[[gnu::noinline]] int overflowStack(int depth)
{
    volatile char room[4096];
    room[0] = static_cast<char>(depth);
    return zero == 0 ? overflowStack(depth + 1) + room[0] : 0;
}

void touchBeyondTheFile()
{
    FILE *empty = tmpfile();
    auto *page = static_cast<volatile char *>(mmap(nullptr, 4096, PROT_READ, MAP_SHARED, fileno(empty), 0));
    print(QByteArray(1, page[0]));
}

const std::map<std::string, std::function<void()>> crashes{
    {"SEGV", [] { raise(SIGSEGV); }},
    {"INT", [] { raise(SIGINT); }},
    {"HUP", [] { raise(SIGHUP); }},
    {"QUIT", [] { raise(SIGQUIT); }},
    {"ALRM", [] { raise(SIGALRM); }},
    {"ILL", [] { raise(SIGILL); }},
    {"BUS", [] { raise(SIGBUS); }},
    {"FPE", [] { raise(SIGFPE); }},
    {"abort", [] { std::abort(); }},
    {"null-pointer", [] { *nowhere = 1; }},
    {"divide-by-zero", [] { print(QByteArray::number(dividend / zero)); }},
    {"beyond-the-file", touchBeyondTheFile},
    {"stack-overflow", [] { overflowStack(0); }},
    {"fatal-error-of-glib", [] { g_error("the paper has no tray"); }},
    {"exception", [] { throw std::runtime_error("out of paper"); }},
    {"exception-without-text", [] { throw 5; }},
    {"exception-that-names-SIGSEGV", [] { throw std::runtime_error("saw SIGSEGV"); }},
    {"two-pipes", [] { raise(SIGPIPE), raise(SIGPIPE); }},
    {"exit",
     [] {
         logInfo("last words");
         std::exit(outlivedStatus);
     }},
    {"hang", [] { std::binary_semaphore(0).acquire(); }},
};

/// More threads than the allocator has arenas by itself, all of which crash at once.
void crashOnManyThreads(const std::function<void()> &crash)
{
    constexpr int count = 40;
    std::barrier together(count);
    std::vector<std::thread> threads;
    for (int thread = 0; thread < count; ++thread) {
        threads.emplace_back([&] {
            together.arrive_and_wait();
            crash();
        });
    }
    for (std::thread &thread : threads)
        thread.join();
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc < 3)
        return 2;
    const auto heapCrash = heapCrashes.find(argv[1]);
    const auto crash = heapCrash != heapCrashes.end() ? heapCrash->second : crashes.at(argv[1]);
    const std::string state = argv[2];
    std::optional<QCoreApplication> application;
    if (state == "application")
        application.emplace(argc, argv);
    const auto logger = std::make_shared<PrintingLogger>();
    WTLog::addLogger(logger);
    std::shared_ptr<WTFileLogger> fileLogger;
    if (argc > 3) {
        const auto manager = std::make_shared<WTLogFileManagerDefault>(QString::fromLocal8Bit(argv[3]));
        fileLogger = std::make_shared<WTFileLogger>(manager);
        fileLogger->setLogFormatter(std::make_shared<WTLogFormatter>());
        WTLog::addLogger(fileLogger);
    }
    WTLog::log(false, WTLogLevelAll, WTLogFlagInfo, 0, "CrashingProgram.cpp", "main", 0, {}, "start");

    if (state == "main") {
        crash();
    } else if (state == "application") {
        const auto sayAndEnd = [] {
            logInfo("last words");
            QCoreApplication::exit(outlivedStatus);
        };
        QMetaObject::invokeMethod(&*application, sayAndEnd, Qt::QueuedConnection);
        return QCoreApplication::exec();
    } else if (state == "thread") {
        std::thread(crash).join();
    } else if (state == "crowd") {
        crashOnManyThreads(crash);
    } else if (state == "event-thread") {
        const DescriptorSource source(
            FileDescriptor(eventfd(1, 0)), [&](int) { return crash(), false; }, std::make_shared<SerialQueue>(), [] {});
        pause();
    } else if (state == "logging-queue") {
        WTLog::loggingQueue().sync(crash);
    } else if (state == "logger-queue") {
        logger->loggerQueue()->sync(crash);
    } else if (state == "file-logger-queue") {
        fileLogger->loggerQueue()->sync(crash);
    } else if (state == "inside-another-logger") {
        const auto other = std::make_shared<PrintingLogger>();
        other->duringMessage = crash;
        WTLog::addLogger(other);
        logErrorSynchronously("now");
    } else if (state == "during-a-report") {
        logger->duringReport = crash;
        raise(SIGHUP);
        for (;;)
            pause();
    } else if (state == "report-that-hangs") {
        logger->duringReport = crashes.at("hang");
        crash();
    }
    print("outlived\n");
    std::_Exit(outlivedStatus);
}
