#pragma once

#include <QStringList>
#include <QTemporaryDir>
#include <functional>

/// A folder of log files, and what the file logger says on the console while the bed lives.
class LogBed
{
public:
    LogBed();
    ~LogBed();
    LogBed(const LogBed &) = delete;
    LogBed &operator=(const LogBed &) = delete;

    /// The folder of the log files; a manager makes it.
    QString folder() const { return m_home.path() + QStringLiteral("/Logs/test"); }
    QString home() const { return m_home.path(); }
    QString path(const QString &name) const { return folder() + u'/' + name; }
    /// The names in the folder, sorted.
    QStringList names() const;

    /// Makes a log file as an earlier run would have left it. `rest` follows the application's name and a space.
    QString leaveFile(const QString &rest, qint64 size = 0) const;
    /// All lines of all files, of the oldest name first, without their line ends.
    QStringList lines() const;

    /// What was written to standard error so far.
    QString console() const;

private:
    QTemporaryDir m_home;
    int m_standardError = -1;
};

/// The permission bits of a path.
uint permissionsOf(const QString &path);
