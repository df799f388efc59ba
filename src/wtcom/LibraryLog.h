#pragma once

#include "FileDescriptor.h"

#include <QString>
#include <mutex>

/// The library's own log file. It tells of searches, devices and byte counts; the bytes that are sent and received
/// never get into it. The file always holds the latest mebibyte of lines, and never grows past two. Any thread.
class LibraryLog
{
public:
    /// Bits of the level mask.
    enum Level { Error = 1, Warning = 2, Info = 4, Debug = 8 };

    /// Before the file would grow beyond twice this size, it is cut to its latest lines, this many bytes at most.
    static constexpr qint64 bytesKept = 1 << 20;

    /// @param path empty: no file. @param levelMask the levels that are written.
    void configure(const QString &path, int levelMask);

    void write(Level level, const QString &text);

private:
    void dropOldLines();

    std::mutex m_mutex;
    QString m_path;
    FileDescriptor m_file;
    int m_levelMask = 0;
};
