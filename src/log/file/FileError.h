#pragma once

#include <QString>

/// Why an operation on a file failed: the system's error number and the file. Number 0 is success.
struct [[nodiscard]] FileError {
    int number = 0;
    QString path;

    /// The error of the system call that has just failed.
    static FileError ofLastCall(const QString &path);

    explicit operator bool() const { return number != 0; }
    bool fileExists() const;
    bool fileIsMissing() const;
    /// Whether the same call may succeed a moment later, on the same file.
    bool isPassing() const;
    /// The system's words for the error number.
    QString reason() const;
    /// Reason, number and file, for a diagnostic.
    QString description() const;
};
