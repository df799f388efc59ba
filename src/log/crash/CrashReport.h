#pragma once

#include "Crash.h"

#include <QString>
#include <chrono>

/// "…SIGSEGV…" in here ends the process after the report.
QString crashReason(const Crash &crash);

/// The report of a crash that happened at `moment`, made on any healthy thread.
QString crashReportText(const Crash &crash, std::chrono::system_clock::time_point moment);

/// "2026-03-09 08:05:07.007 +0100": the seconds stand again behind the point, in three digits.
QString crashReportDate(std::chrono::system_clock::time_point moment);
