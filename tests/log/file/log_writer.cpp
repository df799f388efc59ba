/// A process that logs to a folder, to be killed:
///
///     log_writer FOLDER THREADS LINES
///
/// Each thread logs its lines synchronously, and tells each on standard output.
/// A line is "thread number filling"; the filling's length follows from the number, so that a torn line shows.
#include "Log.h"
#include "WTFileLogger.h"
#include "WTLogFileManagerDefault.h"
#include "WTLogFormatter.h"

#include <QFile>
#include <cstdlib>
#include <string>
#include <thread>
#include <unistd.h>
#include <vector>

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

} // namespace

int main(int argumentCount, char **arguments)
{
    if (argumentCount != 4)
        return 2;
    const QString folder = QFile::decodeName(arguments[1]);
    const auto logger = std::make_shared<WTFileLogger>(std::make_shared<WTLogFileManagerDefault>(folder));
    logger->setLogFormatter(std::make_shared<WTLogFormatter>());
    logger->setMaximumFileSize(0);
    WTLog::addLogger(logger);
    flood(std::atoi(arguments[2]), std::atoi(arguments[3]));
    return 0;
}
