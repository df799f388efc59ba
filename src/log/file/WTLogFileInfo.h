#pragma once

#include "LogFileAttributes.h"
#include "WallClock.h"

#include <QString>
#include <compare>
#include <optional>

/// One log file: its path, and what the file system says about it, asked on first use and kept until `reset`. Two are
/// equal when their paths are. Not thread-safe: each thread has its own copy.
class WTLogFileInfo
{
public:
    explicit WTLogFileInfo(const QString &filePath, WallClock clock = systemWallClock);

    QString filePath() const { return m_filePath; }
    QString fileName() const;
    const LogFileAttributes &fileAttributes() const;
    /// Invalid when the file could not be asked.
    QDateTime creationDate() const { return fileAttributes().creationDate; }
    QDateTime modificationDate() const { return fileAttributes().modificationDate; }
    quint64 fileSize() const { return fileAttributes().size; }
    /// Seconds since the creation date; 0 without one.
    double age() const;
    bool isSymlink() const { return fileAttributes().type == LogFileAttributes::Type::SymbolicLink; }

    /// The mark of a file that is closed for good, see `ArchivedMark`. Not cached.
    bool isArchived() const;
    void setIsArchived(bool isArchived);

    /// Moves the file to another name in its directory, in place of any file that has that name.
    void renameFile(const QString &newFileName);
    /// Drops all that was asked of the file system.
    void reset();

    QString description() const;

    /// Newest first: `greater` says that the other file comes first. A file without a date comes last.
    std::weak_ordering reverseCompareByCreationDate(const WTLogFileInfo &another) const;
    std::weak_ordering reverseCompareByModificationDate(const WTLogFileInfo &another) const;
    static std::weak_ordering reverseCompareDatesUs(const QDateTime &us, const QDateTime &them);

    friend bool operator==(const WTLogFileInfo &one, const WTLogFileInfo &another)
    {
        return one.m_filePath == another.m_filePath;
    }
    friend std::size_t qHash(const WTLogFileInfo &info, std::size_t seed = 0) { return qHash(info.m_filePath, seed); }

private:
    QString m_filePath;
    WallClock m_clock;
    mutable std::optional<LogFileAttributes> m_fileAttributes;
};
