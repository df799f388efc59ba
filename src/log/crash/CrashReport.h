#pragma once

#include "Crash.h"

#include <QString>
#include <chrono>

/// What the report gives as the reason: the exception's text, or that of the signal.
QString crashReason(const Crash &crash);

/// The report of a crash that happened at `moment`, made on any healthy thread.
QString crashReportText(const Crash &crash, std::chrono::system_clock::time_point moment);

/// "2026-03-09 08:05:07.007 +0100": the three digits behind the point repeat the seconds.
QString crashReportDate(std::chrono::system_clock::time_point moment);
