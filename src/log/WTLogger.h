#pragma once

#include <QString>
#include <memory>

class SerialQueue;
class WTLogFormatting;
class WTLogMessage;

/// A destination of log lines. Only `logMessage` must be given; everything else is optional and does nothing by
/// default. `logMessage`, `flush` and the notifications are called on the logger's queue. A logger must never wait for
/// the logging queue from its own.
class WTLogger
{
public:
    virtual ~WTLogger() = default;

    virtual void logMessage(const WTLogMessage &message) = 0;

    virtual std::shared_ptr<WTLogFormatting> logFormatter() const { return nullptr; }
    virtual void setLogFormatter(const std::shared_ptr<WTLogFormatting> & /*formatter*/) {}
    virtual void flush() {}
    /// The serial queue the logger wants to run on; none: the facade makes one.
    virtual std::shared_ptr<SerialQueue> loggerQueue() const { return nullptr; }
    virtual QString loggerName() const { return {}; }
    virtual void didAddLogger() {}
    /// Called in place of the form without a queue, to which it forwards by default.
    virtual void didAddLoggerInQueue(SerialQueue & /*queue*/) { didAddLogger(); }
    virtual void willRemoveLogger() {}
};
