#include "WTLogFileFormatterDefault.h"

#include "TextFormat.h"

#include <QDateTime>

using namespace Qt::Literals::StringLiterals;

namespace
{

QString universalTime(WTLogMessage::Date date)
{
    const auto milliseconds = std::chrono::floor<std::chrono::milliseconds>(date.time_since_epoch());
    return QDateTime::fromMSecsSinceEpoch(milliseconds.count(), Qt::UTC).toString(u"yyyy/MM/dd HH:mm:ss:zzz"_s);
}

} // namespace

WTLogFileFormatterDefault::WTLogFileFormatterDefault(DateFormatter dateFormatter)
    : m_dateFormatter(dateFormatter ? std::move(dateFormatter) : universalTime)
{
}

std::optional<QString> WTLogFileFormatterDefault::formatLogMessage(const WTLogMessage &message)
{
    return formatText("%@  %@", m_dateFormatter(message.timestamp()), message.message());
}
