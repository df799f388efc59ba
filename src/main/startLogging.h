#pragma once

#include <QString>

struct HostCapabilities;

/// Attaches the system's log and the rolling log file to the program's log.
/// @returns the folder of the current log file; the folder that it would be in when it cannot be had.
QString startLogging(const HostCapabilities &capabilities);
