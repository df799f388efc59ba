#pragma once

#include "WTLogFileManaging.h"

#include <QStringList>
#include <atomic>
#include <mutex>

/// Keeps the log files of one folder: "<application name> <date>.log", at most 5 and 20 MiB unless told otherwise, the
/// oldest deleted first. Held by a shared pointer (pruning runs in the background). Any thread.
class WTLogFileManagerDefault : public WTLogFileManaging, public std::enable_shared_from_this<WTLogFileManagerDefault>
{
public:
    /// An empty folder stands for `defaultLogsDirectory`.
    explicit WTLogFileManagerDefault(const QString &logsDirectory = {}, WallClock clock = systemWallClock);

    /// "Logs/<process name>" in the folder of the user's state, the temporary folder without a home.
    static QString defaultLogsDirectory();
    /// Makes the folder when it is missing.
    QString logsDirectory() const override;
    /// The bundle identifier, else the process name.
    static QString applicationName();

    virtual bool isLogFile(const QString &fileName) const;
    virtual QString newLogFileName() const;
    /// The first lines of every new file; absent: none.
    virtual std::optional<QString> logFileHeader() const { return std::nullopt; }
    std::optional<QByteArray> logFileHeaderData() const;

    QStringList unsortedLogFilePaths() const;
    QStringList unsortedLogFileNames() const;
    QList<WTLogFileInfo> unsortedLogFileInfos() const;
    QStringList sortedLogFilePaths() const;
    QStringList sortedLogFileNames() const;
    QList<WTLogFileInfo> sortedLogFileInfos() const override;
    WTLogFileInfo logFileInfo(const QString &filePath) const override { return WTLogFileInfo(filePath, m_clock); }

    NewLogFile createNewLogFileWithError() override;
    /// Deletes what exceeds the limits. Never the newest file that is not archived, nor the one created last.
    void deleteOldLogFiles();

    std::size_t maximumNumberOfLogFiles() const override { return m_maximumNumberOfLogFiles; }
    void setMaximumNumberOfLogFiles(std::size_t maximumNumberOfLogFiles) override;
    quint64 logFilesDiskQuota() const override { return m_logFilesDiskQuota; }
    void setLogFilesDiskQuota(quint64 logFilesDiskQuota) override;

    std::shared_ptr<const WTFileLogMessageSerializer> logMessageSerializer() const override;
    void setLogMessageSerializer(std::shared_ptr<const WTFileLogMessageSerializer> serializer);

private:
    QDateTime dateOf(const WTLogFileInfo &info) const;
    qsizetype firstIndexToDelete(const QList<WTLogFileInfo> &newestFirst) const;
    bool isBeingWritten(const WTLogFileInfo &info) const;
    void deleteOldLogFilesInBackground();
    void deleteOldFilesForConfigurationChange();

    const WallClock m_clock;
    std::atomic<std::size_t> m_maximumNumberOfLogFiles = 5;
    std::atomic<quint64> m_logFilesDiskQuota = quint64{20} * 1024 * 1024;
    const QString m_logsDirectory;
    mutable std::mutex m_mutex;
    std::shared_ptr<const WTFileLogMessageSerializer> m_logMessageSerializer;
    QString m_lastCreatedPath;
};
