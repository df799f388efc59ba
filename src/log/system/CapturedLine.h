#pragma once

#include "WTLogMessage.h"

/// Lines that a capture of the system's log feeds back into the program; the system loggers would send them in a
/// circle.
inline bool isCapturedLine(const WTLogMessage &message)
{
    return message.fileName() == QLatin1StringView("WTASLLogCapture");
}
