#pragma once

#include <QString>
#include <chrono>

/// A moment in the machine's time zone, as strftime(3) lays it out. It is given in seconds, because a log file may bear
/// any year of four digits and a clock of nanoseconds reaches from 1677 to 2262 only.
QString localTimeText(std::chrono::sys_seconds moment, const char *strftimeFormat);

/// "2026-03-09 08:05:07.089"
QString localTimeInMilliseconds(std::chrono::system_clock::time_point moment);
