#pragma once

#include <QString>
#include <chrono>

/// A moment in the machine's time zone, as strftime(3) lays it out.
QString localTimeText(std::chrono::system_clock::time_point moment, const char *strftimeFormat);

/// "2026-03-09 08:05:07.089"
QString localTimeInMilliseconds(std::chrono::system_clock::time_point moment);
