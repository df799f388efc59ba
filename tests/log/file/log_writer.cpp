/// A process that logs to a folder, to be killed or to crash:
///
///     log_writer FOLDER flood THREADS LINES   each thread logs its lines synchronously, and tells each on standard
///     output log_writer FOLDER segv|abort|fpe|exception
///
/// A line is "thread number filling"; the filling's length follows from the number, so that a torn line shows.
#include "Log.h"
#include "WTFileLogger.h"
#include "WTLogFileManagerDefault.h"
#include "WTLogFormatter.h"

#include <QCoreApplication>
#include <QFile>
#include <csignal>
#include <stdexcept>
#include <string>
#include <thread>
#include <unistd.h>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace
{

void flood(int threads, int lines)
{
    std::vector<std::thread> writers;
    for (int thread = 0; thread < threads; ++thread) {
        writers.emplace_back([thread, lines] {
            for (int number = 0; number < lines; ++number) {
                const std::string line = std::to_string(getpid() * 10 + thread) + ' ' + std::to_string(number);
                const std::string filling(static_cast<std::size_t>(number % 2000), 'x');
                WTLog::log(false, WTLogLevelAll, WTLogFlagInfo, 0, "", "", 0, {}, "line %@ %@", line.c_str(),
                           filling.c_str());
                const std::string told = line + '\n';
                static_cast<void>(!::write(STDOUT_FILENO, told.data(), told.size()));
            }
        });
    }
    for (std::thread &writer : writers)
        writer.join();
}

void crash(const QByteArray &fault)
{
    logInfo("before the end");
    if (fault == "segv")
        raise(SIGSEGV);
    if (fault == "fpe")
        raise(SIGFPE);
    if (fault == "exception")
        throw std::runtime_error("nobody catches this");
    std::abort();
}

} // namespace

int main(int argumentCount, char **arguments)
{
    const QString folder = QFile::decodeName(arguments[1]);
    const auto logger = std::make_shared<WTFileLogger>(std::make_shared<WTLogFileManagerDefault>(folder));
    logger->setLogFormatter(std::make_shared<WTLogFormatter>());
    logger->setMaximumFileSize(0);
    WTLog::addLogger(logger);
    const QByteArray mode = arguments[2];
    if (mode == "flood" && argumentCount == 5)
        flood(std::atoi(arguments[3]), std::atoi(arguments[4]));
    else
        crash(mode);
    return 0;
}
