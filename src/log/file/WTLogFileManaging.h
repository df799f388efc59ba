#pragma once

#include "FileError.h"
#include "WTFileLogPlainTextMessageSerializer.h"
#include "WTLogFileInfo.h"

#include <QList>
#include <memory>
#include <optional>

/// What a file logger asks of its manager, which names, finds, creates and prunes the log files. Creation and listing
/// are called on the logger's queue, notifications on its completion queue, the limits from anywhere.
class WTLogFileManaging
{
public:
    /// The path of a new file, or the reason why there is none, where one is known.
    struct NewLogFile {
        std::optional<QString> path;
        std::optional<FileError> error;
    };

    virtual ~WTLogFileManaging() = default;

    virtual QString logsDirectory() const = 0;
    /// 0: any number.
    virtual std::size_t maximumNumberOfLogFiles() const = 0;
    virtual void setMaximumNumberOfLogFiles(std::size_t maximumNumberOfLogFiles) = 0;
    /// Bytes that all files together may take; 0: no limit.
    virtual quint64 logFilesDiskQuota() const = 0;
    virtual void setLogFilesDiskQuota(quint64 logFilesDiskQuota) = 0;

    /// Newest first.
    virtual QList<WTLogFileInfo> sortedLogFileInfos() const = 0;
    /// The facts of one file, as the manager's own lists give them.
    virtual WTLogFileInfo logFileInfo(const QString &filePath) const { return WTLogFileInfo(filePath); }

    /// A manager overrides one of these two.
    virtual NewLogFile createNewLogFileWithError() { return {createNewLogFile(), std::nullopt}; }
    virtual std::optional<QString> createNewLogFile() { return std::nullopt; }

    virtual std::shared_ptr<const WTFileLogMessageSerializer> logMessageSerializer() const
    {
        return std::make_shared<WTFileLogPlainTextMessageSerializer>();
    }

    /// A file was closed for good: rolled while it was written, or found unfit at the start. A manager that overrides
    /// this one never hears the two narrower ones.
    virtual void didArchiveLogFile(const QString &logFilePath, bool wasRolled)
    {
        if (wasRolled)
            didRollAndArchiveLogFile(logFilePath);
        else
            didArchiveLogFile(logFilePath);
    }
    virtual void didArchiveLogFile(const QString & /*logFilePath*/) {}
    virtual void didRollAndArchiveLogFile(const QString & /*logFilePath*/) {}
};
