#include "LogFileNameDate.h"

#include <QRegularExpression>
#include <ctime>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace
{

/// Seconds from UTC of "+03", "-0930" and "+05:30"; absent beyond the offsets that are in use.
std::optional<int> secondsOfOffset(const QString &zone)
{
    constexpr int most = 14 * 60 * 60;
    static const QRegularExpression pattern(u"\\A([+-])(\\d\\d):?([0-5]\\d)?\\z"_s);
    const QRegularExpressionMatch match = pattern.match(zone);
    if (!match.hasMatch())
        return std::nullopt;
    const int seconds = (match.capturedView(2).toInt() * 60 + match.capturedView(3).toInt()) * 60;
    if (seconds > most)
        return std::nullopt;
    return match.capturedView(1) == u'-' ? -seconds : seconds;
}

/// Local time whose abbreviation says whether daylight-saving time was in force, which settles the hour that occurs
/// twice.
QDateTime localDateTime(const QDate &date, const QTime &time, bool isDaylightSaving)
{
    std::tm parts{};
    parts.tm_year = date.year() - 1900;
    parts.tm_mon = date.month() - 1;
    parts.tm_mday = date.day();
    parts.tm_hour = time.hour();
    parts.tm_min = time.minute();
    parts.tm_sec = time.second();
    parts.tm_isdst = isDaylightSaving ? 1 : 0;
    return QDateTime::fromSecsSinceEpoch(std::mktime(&parts));
}

} // namespace

QString LogFileNameDate::text(const QDateTime &date)
{
    const std::time_t seconds = date.toSecsSinceEpoch();
    std::tm parts{};
    localtime_r(&seconds, &parts);
    char name[128];
    const std::size_t length = std::strftime(name, sizeof name, "%Y-%m-%d--%H-%M-%S-%Z", &parts);
    return QString::fromUtf8(name, static_cast<qsizetype>(length));
}

QDateTime LogFileNameDate::parse(const QString &text)
{
    static const QRegularExpression pattern(u"\\A(\\d{4}-\\d\\d-\\d\\d)--(\\d\\d-\\d\\d-\\d\\d)-(.+)\\z"_s);
    const QRegularExpressionMatch match = pattern.match(text);
    const QDate date = QDate::fromString(match.captured(1), u"yyyy-MM-dd"_s);
    const QTime time = QTime::fromString(match.captured(2), u"HH-mm-ss"_s);
    if (!date.isValid() || !time.isValid())
        return {};
    const QString zone = match.captured(3);
    if (zone == u"UTC"_s)
        return QDateTime(date, time, Qt::UTC);
    if (const std::optional<int> seconds = secondsOfOffset(zone))
        return QDateTime(date, time, Qt::OffsetFromUTC, *seconds);
    tzset();
    if (zone == QString::fromLocal8Bit(tzname[0]))
        return localDateTime(date, time, false);
    if (zone == QString::fromLocal8Bit(tzname[1]))
        return localDateTime(date, time, true);
    return {};
}
