#pragma once

#include "Locked.h"
#include "SerialQueue.h"
#include "WTLogFormatting.h"
#include "WTLogger.h"

#include <memory>
#include <optional>

/// The base of the loggers: a queue of its own and a formatter. A logger has to live in a shared pointer before its
/// settings below are used. They may be used on any thread but the logging queue's and the logger's own.
class WTAbstractLogger : public WTLogger, public std::enable_shared_from_this<WTAbstractLogger>
{
public:
    WTAbstractLogger() = default;
    WTAbstractLogger(const WTAbstractLogger &) = delete;
    WTAbstractLogger &operator=(const WTAbstractLogger &) = delete;

    /// Does nothing.
    void logMessage(const WTLogMessage &message) override;
    /// Waits for the logging queue, then for the logger's queue, as the getter of every setting does that may change.
    std::shared_ptr<WTLogFormatting> logFormatter() const override;
    /// Returns at once; a message logged directly after it may still get the old formatter.
    void setLogFormatter(const std::shared_ptr<WTLogFormatting> &formatter) override;
    /// Made on first use, labelled with `loggerName`.
    std::shared_ptr<SerialQueue> loggerQueue() const override;
    void setLoggerQueue(const std::shared_ptr<SerialQueue> &queue);
    /// The class name of the object.
    QString loggerName() const override;
    bool isOnGlobalLoggingQueue() const;
    bool isOnInternalLoggerQueue() const;

protected:
    /// What the formatter makes of the message, or its own text when there is no formatter; absent drops the message.
    /// On the logger's queue only.
    std::optional<QString> textForMessage(const WTLogMessage &message) const;
    /// Runs `job` on the logger's queue after all that the logging queue holds, and waits for it: how settings are
    /// read.
    void readOnQueues(const SerialQueue::Job &job) const;
    /// The same without waiting; keeps the logger alive until `job` has run: how settings are changed.
    void changeOnQueues(SerialQueue::Job job);

    /// Touched on the logger's queue only.
    std::shared_ptr<WTLogFormatting> m_logFormatter;

private:
    mutable Locked<std::shared_ptr<SerialQueue>> m_loggerQueue;
};
