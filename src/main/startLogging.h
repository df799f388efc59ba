#pragma once

#include <QString>

struct HostCapabilities;

/// Attaches the system's log and the rolling log file to the program's log, which reports crashes from then on; in
/// exchange the system is told to write no core dump.
/// @returns the folder of the current log file; the folder that it would be in when it cannot be had.
QString startLogging(const HostCapabilities &capabilities);
