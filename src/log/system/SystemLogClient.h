#pragma once

#include <QByteArray>

/// A connection to the classic system log.
class SystemLogClient
{
public:
    virtual ~SystemLogClient() = default;

    /// `level` is the priority, 0 the most urgent to 7.
    virtual void send(int level, const QByteArray &utf8Message) = 0;
};
