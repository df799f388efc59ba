#pragma once

#include "TextFormat.h"

/// The plain console of the file logger's own diagnostics: standard error, one line a call. Never the log itself, so
/// that a broken file logger cannot recurse into itself.
namespace LogConsole
{

void writeLine(const QString &line);

/// Placeholders are those of `formatText`.
template <typename... Arguments>
void report(const char *format, const Arguments &...arguments)
{
    writeLine(formatText(format, arguments...));
}

} // namespace LogConsole
