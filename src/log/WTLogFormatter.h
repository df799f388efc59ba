#pragma once

#include "WTLogFormatting.h"

/// The program's line: local date and time with milliseconds, thread id, a mark for the flag and the text; error and
/// verbose lines name the place in the source as well. Holds nothing: any thread.
class WTLogFormatter : public WTLogFormatting
{
public:
    /// Never absent.
    std::optional<QString> formatLogMessage(const WTLogMessage &message) override;
};
