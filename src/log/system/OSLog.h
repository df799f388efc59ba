#pragma once

#include <QString>

enum class OSLogType { Error, Info, Debug };

/// A handle of the operating system's log.
class OSLog
{
public:
    virtual ~OSLog() = default;

    virtual void send(OSLogType type, const QString &text) = 0;
};
