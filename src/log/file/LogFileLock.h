#pragma once

#include "FileError.h"

/// The exclusive advisory lock on an open log file, given back by the destructor. Waits while another process holds it.
class LogFileLock
{
public:
    explicit LogFileLock(int logFile);
    ~LogFileLock();
    LogFileLock(const LogFileLock &) = delete;
    LogFileLock &operator=(const LogFileLock &) = delete;

    /// Why there is no lock, if there is none.
    const FileError &error() const { return m_error; }

private:
    const int m_logFile;
    FileError m_error;
};
