#pragma once

#include <QDateTime>
#include <functional>

/// Where the log files' names and ages take the present from. Any thread.
using WallClock = std::function<QDateTime()>;

inline QDateTime systemWallClock()
{
    return QDateTime::currentDateTime();
}
