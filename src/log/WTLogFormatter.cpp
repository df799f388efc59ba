#include "WTLogFormatter.h"

#include "LocalTime.h"
#include "TextFormat.h"
#include "WTLogMessage.h"

using namespace Qt::Literals::StringLiterals;

namespace
{

std::optional<QString> markOf(quint64 flag)
{
    switch (flag) {
    case WTLogFlagError:
        return u"❌"_s;
    case WTLogFlagWarning:
        return u"⚠️"_s;
    case WTLogFlagInfo:
        return u"🟢"_s;
    case WTLogFlagDebug:
        return u"👨🏻💻"_s;
    case WTLogFlagVerbose:
        return u"💼"_s;
    default:
        return std::nullopt;
    }
}

} // namespace

std::optional<QString> WTLogFormatter::formatLogMessage(const WTLogMessage &message)
{
    const QString date = localTimeInMilliseconds(message.timestamp());
    const std::optional<QString> mark = markOf(message.flag());
    if (message.flag() == WTLogFlagError || message.flag() == WTLogFlagVerbose)
        return formatText(u"[%@ TID:%6@] %@ <FileName: %@> <Function: %@> <Line: %ld> %@",
                          {date, message.threadID(), mark, message.fileName(), message.function(), message.line(),
                           message.message()});
    return formatText(u"[%@ TID:%6@] %@ %@", {date, message.threadID(), mark, message.message()});
}
