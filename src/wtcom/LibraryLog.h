#pragma once

#include <QFile>
#include <QString>
#include <mutex>

/// The library's own log file. It tells of searches, devices and byte counts; a byte that travels never gets into it.
/// The file is bounded: past its limit it starts anew. Any thread.
class LibraryLog
{
public:
    /// Bits of the level mask.
    enum Level { Error = 1, Warning = 2, Info = 4, Debug = 8 };

    /// Bytes.
    static constexpr qint64 sizeLimit = 1 << 20;

    /// @param path empty: no file. @param levelMask the levels that are written.
    void configure(const QString &path, int levelMask);

    void write(Level level, const QString &text);

private:
    std::mutex m_mutex;
    QFile m_file;
    int m_levelMask = 0;
};
