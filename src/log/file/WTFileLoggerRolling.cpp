/// How the file logger chooses, opens, watches and rolls its file.
#include "WTFileLogger.h"

#include "GlobalQueue.h"
#include "LogConsole.h"
#include "LogFileWatch.h"
#include "RollingTimer.h"

#include <atomic>

namespace
{

/// Reports that the system has no watch or no timer to give. This lasts, so the report would come again with every log
/// file.
void sayOnce(std::atomic_flag &isSaid, const char *what)
{
    if (!isSaid.test_and_set())
        LogConsole::report("%@", what);
}

std::atomic_flag missingWatchIsSaid, missingTimerIsSaid;

} // namespace

void WTFileLogger::rollLogFile()
{
    rollLogFileWithCompletionBlock({});
}

void WTFileLogger::rollLogFileWithCompletionBlock(CompletionBlock completionBlock)
{
    auto roll = [this, completionBlock = std::move(completionBlock)] {
        lt_rollLogFileNow();
        if (completionBlock)
            complete(completionBlock);
    };
    if (isOnInternalLoggerQueue())
        roll();
    else
        changeOnQueues(std::move(roll));
}

LogFileHandle *WTFileLogger::lt_currentLogFileHandle()
{
    if (!m_currentLogFileHandle.isOpen())
        lt_openLogFile();
    return m_currentLogFileHandle.isOpen() ? &m_currentLogFileHandle : nullptr;
}

void WTFileLogger::lt_openLogFile()
{
    std::optional<WTLogFileInfo> info = lt_currentLogFileInfo();
    if (!info)
        return;
    FileError error = m_currentLogFileHandle.open(info->filePath());
    if (error) {
        // The file vanished since it was chosen, or may not be written: a new one takes its place.
        LogConsole::report("WTFileLogger: Failed to open log file: %@", error.description());
        info = lt_createLogFile();
        if (!info)
            return;
        error = m_currentLogFileHandle.open(info->filePath());
    }
    if (error) {
        LogConsole::report("WTFileLogger: Failed to open log file: %@", error.description());
        return;
    }
    if (const FileError seekError = m_currentLogFileHandle.seekToEnd())
        LogConsole::report("WTFileLogger: Failed to seek to end of file: %@", seekError.description());
    lt_scheduleTimerToRollLogFileDueToAge();
    m_currentLogFileVnode =
        watchLogFile(m_currentLogFileHandle.descriptor(), loggerQueue(), weakAction(&WTFileLogger::lt_rollLogFileNow));
    if (!m_currentLogFileVnode->isWaiting())
        sayOnce(missingWatchIsSaid,
                "WTFileLogger: The log file cannot be watched; it is looked after at every line instead");
}

/// Before each line: does the work of the watch and of the timer, where the system has none to give.
void WTFileLogger::lt_lookAfterLogFile()
{
    if (!m_currentLogFileHandle.isOpen())
        return;
    const bool hasTimer = m_rollingFrequency <= 0 || (m_rollingTimer && m_rollingTimer->isWaiting());
    if (!m_currentLogFileVnode->isWaiting() && m_currentLogFileHandle.isGone())
        lt_rollLogFileNow();
    else if (!hasTimer)
        lt_maybeRollLogFileDueToAge();
}

std::optional<WTLogFileInfo> WTFileLogger::lt_currentLogFileInfo()
{
    if (m_currentLogFileInfo) {
        if (lt_shouldUseLogFile(*m_currentLogFileInfo, false))
            return m_currentLogFileInfo;
        // Another process has archived the file: this one writes to a new file, too.
        lt_closeLogFile();
        return lt_createLogFile();
    }
    QList<WTLogFileInfo> newestFirst = m_logFileManager->sortedLogFileInfos();
    if (newestFirst.isEmpty() || !lt_shouldUseLogFile(newestFirst.first(), true))
        return lt_createLogFile();
    m_currentLogFileInfo = newestFirst.first();
    return m_currentLogFileInfo;
}

std::optional<WTLogFileInfo> WTFileLogger::lt_createLogFile()
{
    m_currentLogFileInfo.reset();
    const WTLogFileManaging::NewLogFile created = m_logFileManager->createNewLogFileWithError();
    if (created.path)
        m_currentLogFileInfo = m_logFileManager->logFileInfo(*created.path);
    else if (created.error)
        LogConsole::report("WTFileLogger: Failed to create new log file: %@", created.error->description());
    else
        LogConsole::report("WTFileLogger: Failed to create new log file");
    return m_currentLogFileInfo;
}

bool WTFileLogger::lt_shouldUseLogFile(WTLogFileInfo &logFileInfo, bool isResuming)
{
    if (logFileInfo.isArchived() || logFileInfo.isSymlink())
        return false;
    if (!isResuming || (!m_doNotReuseLogFiles && !lt_shouldLogFileBeArchived(logFileInfo)))
        return true;
    logFileInfo.setIsArchived(true);
    complete([manager = m_logFileManager, path = logFileInfo.filePath()] { manager->didArchiveLogFile(path, false); });
    return false;
}

bool WTFileLogger::lt_shouldLogFileBeArchived(const WTLogFileInfo &logFileInfo)
{
    if (shouldArchiveRecentLogFileInfo(logFileInfo))
        return true;
    if (m_maximumFileSize > 0 && logFileInfo.fileSize() >= m_maximumFileSize)
        return true;
    return m_rollingFrequency > 0 && logFileInfo.age() >= m_rollingFrequency;
}

void WTFileLogger::lt_rollLogFileNow()
{
    if (!m_currentLogFileHandle.isOpen())
        return;
    lt_closeLogFile();
    m_currentLogFileInfo->setIsArchived(true);
    complete([manager = m_logFileManager, path = m_currentLogFileInfo->filePath()] {
        manager->didArchiveLogFile(path, true);
    });
    m_currentLogFileInfo.reset();
}

void WTFileLogger::lt_maybeRollLogFileDueToSize()
{
    if (!m_currentLogFileHandle.isOpen() || m_maximumFileSize == 0)
        return;
    quint64 offset = 0;
    if (const FileError error = m_currentLogFileHandle.readOffset(offset)) {
        LogConsole::report("WTFileLogger: Failed to get offset: %@", error.description());
        return;
    }
    if (offset >= m_maximumFileSize)
        lt_rollLogFileNow();
}

void WTFileLogger::lt_maybeRollLogFileDueToAge()
{
    constexpr double slack = 1;
    const bool isDue =
        m_currentLogFileInfo && m_rollingFrequency > 0 && m_currentLogFileInfo->age() + slack >= m_rollingFrequency;
    if (isDue)
        lt_rollLogFileNow();
    else
        lt_scheduleTimerToRollLogFileDueToAge();
}

void WTFileLogger::lt_scheduleTimerToRollLogFileDueToAge()
{
    m_rollingTimer.reset();
    if (!m_currentLogFileInfo || m_rollingFrequency <= 0)
        return;
    m_rollingTimer = startRollingTimer(m_rollingFrequency - m_currentLogFileInfo->age(), loggerQueue(),
                                       weakAction(&WTFileLogger::lt_maybeRollLogFileDueToAge));
    if (!m_rollingTimer->isWaiting())
        sayOnce(missingTimerIsSaid,
                "WTFileLogger: No timer for the age of the log file; it is looked at at every line instead");
}

void WTFileLogger::lt_closeLogFile()
{
    if (!m_currentLogFileHandle.isOpen())
        return;
    m_currentLogFileVnode.reset();
    m_rollingTimer.reset();
    if (const FileError error = m_currentLogFileHandle.synchronize())
        LogConsole::report("WTFileLogger: Failed to synchronize file: %@", error.description());
    if (const FileError error = m_currentLogFileHandle.close())
        LogConsole::report("WTFileLogger: Failed to close file: %@", error.description());
}

void WTFileLogger::complete(CompletionBlock job) const
{
    if (m_completionQueue)
        m_completionQueue->async(std::move(job));
    else
        GlobalQueue::async(std::move(job));
}

DescriptorSource::Action WTFileLogger::weakAction(void (WTFileLogger::*action)())
{
    return [weakly = std::weak_ptr(std::static_pointer_cast<WTFileLogger>(shared_from_this())), action] {
        if (const auto logger = weakly.lock())
            (logger.get()->*action)();
    };
}
