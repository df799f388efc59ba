#pragma once

#include "FileDescriptor.h"

#include <QString>
#include <mutex>

/// The library's own log file. It tells of searches, devices and byte counts; a byte that travels never gets into it.
/// The file always holds the latest mebibyte of lines, and never grows past two. Any thread.
class LibraryLog
{
public:
    /// Bits of the level mask.
    enum Level { Error = 1, Warning = 2, Info = 4, Debug = 8 };

    /// Bytes of the oldest lines go, all but this many of the latest, when there are twice as many.
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
