#include "LogFileLock.h"

#include <sys/file.h>

LogFileLock::LogFileLock(int logFile)
    : m_logFile(logFile)
{
    if (flock(logFile, LOCK_EX) != 0)
        m_error = FileError::ofLastCall({});
}

LogFileLock::~LogFileLock()
{
    if (!m_error)
        flock(m_logFile, LOCK_UN);
}
