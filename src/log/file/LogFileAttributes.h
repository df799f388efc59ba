#pragma once

#include "FileError.h"

#include <QDateTime>

/// What the file system knows about a log file. All zero and invalid when the file could not be asked.
struct LogFileAttributes {
    enum class Type { Unknown, Regular, SymbolicLink };

    Type type = Type::Unknown;
    quint64 size = 0;
    /// Where the file system keeps no date of birth: the modification date.
    QDateTime creationDate;
    QDateTime modificationDate;

    QString description() const;
};

/// Fills `attributes` with those of `path` itself: a symbolic link is not followed.
FileError readLogFileAttributes(const QString &path, LogFileAttributes &attributes);
