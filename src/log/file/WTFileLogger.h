#pragma once

#include "DescriptorSource.h"
#include "LogFileHandle.h"
#include "WTAbstractLogger.h"
#include "WTLogFileManaging.h"

#include <atomic>

/// Keeps the log in one text file after the other: a file is rolled (closed for good, the next one is begun) when it is
/// too large or too old, on request, and when it is deleted or moved away. Several processes may write one file.
/// Nothing is opened before the first message. No failure reaches the caller: each is told on the console, and logging
/// goes on with the next message.
///
/// Public operations may be called on any thread; but those that wait must not be called on the logging queue, for
/// which they wait.
class WTFileLogger : public WTAbstractLogger
{
public:
    using CompletionBlock = std::function<void()>;

    WTFileLogger();
    /// Manager notifications and roll completions run on `completionQueue`; without one, on shared threads.
    explicit WTFileLogger(std::shared_ptr<WTLogFileManaging> logFileManager,
                          std::shared_ptr<SerialQueue> completionQueue = nullptr);
    ~WTFileLogger() override;

    /// Bytes; 0: no limit.
    quint64 maximumFileSize() const;
    void setMaximumFileSize(quint64 maximumFileSize);
    /// Seconds; 0 or less: no limit.
    double rollingFrequency() const;
    void setRollingFrequency(double rollingFrequency);
    /// Chooses or creates the current file, without opening it; absent when none can be had.
    std::optional<WTLogFileInfo> currentLogFileInfo();
    /// Whether files of earlier runs are left alone.
    bool doNotReuseLogFiles() const { return m_doNotReuseLogFiles; }
    void setDoNotReuseLogFiles(bool doNotReuse) { m_doNotReuseLogFiles = doNotReuse; }
    /// Whether a line end is added to text that a formatter made.
    bool automaticallyAppendNewlineForCustomFormatters() const { return m_appendNewline; }
    void setAutomaticallyAppendNewlineForCustomFormatters(bool append) { m_appendNewline = append; }
    std::shared_ptr<WTLogFileManaging> logFileManager() const { return m_logFileManager; }

    void rollLogFile();
    void rollLogFileWithCompletionBlock(CompletionBlock completionBlock);
    /// Appends raw bytes, and returns when they are in the file.
    void logData(const QByteArray &data);

    void logMessage(const WTLogMessage &message) override;
    /// Returns when the file is on the disk.
    void flush() override;
    QString loggerName() const override;
    void willRemoveLogger() override;

protected:
    /// Hooks around each write, on the logger's queue. An override of `didLogMessage` has to call this one, which rolls
    /// a file that is too large.
    virtual void willLogMessage(const WTLogFileInfo &logFileInfo);
    virtual void didLogMessage(const WTLogFileInfo &logFileInfo);
    /// The older form of the hooks; a subclass that overrides them gets no call of the newer ones. Called from outside
    /// a write, they do nothing.
    virtual void willLogMessage();
    virtual void didLogMessage();
    /// Whether a file of an earlier run is to be left alone for another reason than its size or age.
    virtual bool shouldArchiveRecentLogFileInfo(const WTLogFileInfo &recentLogFileInfo);

private:
    QByteArray lt_dataForMessage(const WTLogMessage &message) const;
    void lt_logData(const QByteArray &data);
    void lt_lookAfterLogFile();
    void lt_appendData(const QByteArray &data);
    LogFileHandle *lt_currentLogFileHandle();
    void lt_openLogFile();
    std::optional<WTLogFileInfo> lt_currentLogFileInfo();
    std::optional<WTLogFileInfo> lt_createLogFile();
    bool lt_shouldUseLogFile(WTLogFileInfo &logFileInfo, bool isResuming);
    bool lt_shouldLogFileBeArchived(const WTLogFileInfo &logFileInfo);
    void lt_rollLogFileNow();
    void lt_maybeRollLogFileDueToSize();
    void lt_maybeRollLogFileDueToAge();
    void lt_scheduleTimerToRollLogFileDueToAge();
    void lt_closeLogFile();
    void complete(CompletionBlock job) const;
    /// An action for the logger's queue that dies with the logger.
    DescriptorSource::Action weakAction(void (WTFileLogger::*action)());

    const std::shared_ptr<WTLogFileManaging> m_logFileManager;
    const std::shared_ptr<SerialQueue> m_completionQueue;
    std::atomic<bool> m_doNotReuseLogFiles = false;
    std::atomic<bool> m_appendNewline = true;

    // From here on: the logger's queue only.
    std::optional<WTLogFileInfo> m_currentLogFileInfo;
    LogFileHandle m_currentLogFileHandle;
    std::unique_ptr<DescriptorSource> m_currentLogFileVnode;
    double m_rollingFrequency = 24 * 60 * 60;
    std::unique_ptr<DescriptorSource> m_rollingTimer;
    quint64 m_maximumFileSize = quint64{1024} * 1024;
    bool m_isWriting = false;
    /// The file system has refused the lock for a reason that does not pass.
    bool m_worksWithoutLock = false;
};
