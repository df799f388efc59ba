#include "startLogging.h"

#include "HostCapabilities.h"
#include "WTASLLogger.h"
#include "WTFileLogger.h"
#include "WTLog.h"
#include "WTLogFormatter.h"
#include "WTOSLogger.h"

#include <QFileInfo>
#include <memory>
#include <sys/resource.h>

namespace
{

constexpr double secondsPerFile = 86400;
constexpr quint64 bytesPerFile = 0x6400000;
constexpr std::size_t filesKept = 7;

/// A dump would hold the password of the moment.
void forbidCoreDumps()
{
    rlimit limit{};
    getrlimit(RLIMIT_CORE, &limit);
    limit.rlim_cur = 0;
    setrlimit(RLIMIT_CORE, &limit);
}

} // namespace

QString startLogging(const HostCapabilities &capabilities)
{
    forbidCoreDumps();
    if (capabilities.hasUnifiedLog)
        WTLog::addLogger(WTOSLogger::sharedInstance());
    else
        WTLog::addLogger(WTASLLogger::sharedInstance());

    const auto fileLogger = std::make_shared<WTFileLogger>();
    fileLogger->setRollingFrequency(secondsPerFile);
    fileLogger->setMaximumFileSize(bytesPerFile);
    fileLogger->logFileManager()->setMaximumNumberOfLogFiles(filesKept);
    fileLogger->setLogFormatter(std::make_shared<WTLogFormatter>());
    WTLog::addLogger(fileLogger);

    const std::optional<WTLogFileInfo> logFile = fileLogger->currentLogFileInfo();
    return logFile ? QFileInfo(logFile->filePath()).path() : fileLogger->logFileManager()->logsDirectory();
}
