#pragma once

#include <QString>
#include <optional>

class SerialQueue;
class WTLogger;
class WTLogMessage;

/// What lays out the lines of a logger. Called on the logger's queue; one formatter may serve several loggers.
class WTLogFormatting
{
public:
    virtual ~WTLogFormatting() = default;

    /// The text of the line; absent drops the message.
    virtual std::optional<QString> formatLogMessage(const WTLogMessage &message) = 0;

    virtual void didAddToLogger(WTLogger &) {}
    /// Called in place of the form without a queue, to which it forwards by default.
    virtual void didAddToLogger(WTLogger &logger, SerialQueue & /*inQueue*/) { didAddToLogger(logger); }
    virtual void willRemoveFromLogger(WTLogger &) {}
};
