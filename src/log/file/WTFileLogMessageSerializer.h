#pragma once

#include <QByteArray>
#include <QString>

class WTLogMessage;

/// Turns a line of text into the bytes of a log file. Called on the file logger's queue.
class WTFileLogMessageSerializer
{
public:
    virtual ~WTFileLogMessageSerializer() = default;
    /// `message` is null for text that is no message, such as the file header.
    virtual QByteArray dataForString(const QString &string, const WTLogMessage *message) const = 0;
};
