#pragma once

#include "TextFormat.h"
#include "WTLog.h"

#include <source_location>

/// A format text and the place in the source where it stands. Made implicitly by the functions below.
struct LogFormat {
    constexpr LogFormat(const char *utf8, std::source_location place = std::source_location::current())
        : text(utf8)
        , where(place)
    {
    }
    const char *text;
    std::source_location where;
};

/// The calls that the program's code logs with. The message has every level, context 0, no tag and the caller's file,
/// function and line, and is delivered asynchronously. Placeholders are those of `formatText`. Any thread.
template <typename... Arguments>
void logError(LogFormat format, const Arguments &...arguments)
{
    WTLog::write(true, WTLogFlagError, format.where, format.text, {FormatArgument(arguments)...});
}

template <typename... Arguments>
void logWarning(LogFormat format, const Arguments &...arguments)
{
    WTLog::write(true, WTLogFlagWarning, format.where, format.text, {FormatArgument(arguments)...});
}

template <typename... Arguments>
void logInfo(LogFormat format, const Arguments &...arguments)
{
    WTLog::write(true, WTLogFlagInfo, format.where, format.text, {FormatArgument(arguments)...});
}

template <typename... Arguments>
void logDebug(LogFormat format, const Arguments &...arguments)
{
    WTLog::write(true, WTLogFlagDebug, format.where, format.text, {FormatArgument(arguments)...});
}

/// An error line that every logger has written when the call returns.
template <typename... Arguments>
void logErrorSynchronously(LogFormat format, const Arguments &...arguments)
{
    WTLog::write(false, WTLogFlagError, format.where, format.text, {FormatArgument(arguments)...});
}
