#include "LogFileNameDate.h"

#include "LocalTime.h"

#include <ctime>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace
{

/// Seconds from UTC of "+03", "-0930" and "+05:30"; absent beyond the offsets that are in use.
std::optional<int> secondsOfOffset(const QString &zone)
{
    constexpr int most = 14 * 60 * 60;
    QString digits = zone.sliced(1);
    if (digits.size() == 5 && digits[2] == u':')
        digits.remove(2, 1);
    if (digits.size() == 2)
        digits += u"00"_s;
    const QTime offset = QTime::fromString(digits, u"hhmm"_s);
    const int seconds = offset.msecsSinceStartOfDay() / 1000;
    if ((zone[0] != u'+' && zone[0] != u'-') || digits.size() != 4 || !offset.isValid() || seconds > most)
        return std::nullopt;
    return zone[0] == u'-' ? -seconds : seconds;
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
    const auto sinceEpoch = std::chrono::milliseconds(date.toMSecsSinceEpoch());
    const std::chrono::sys_seconds moment(std::chrono::floor<std::chrono::seconds>(sinceEpoch));
    return localTimeText(moment, "%Y-%m-%d--%H-%M-%S-%Z");
}

// Without a regular expression: a static one would be gone before the threads that list files while the process ends.
QDateTime LogFileNameDate::parse(const QString &text)
{
    constexpr qsizetype datePlace = 0, timePlace = 12, zonePlace = 21;
    if (text.size() <= zonePlace || text.sliced(10, 2) != u"--"_s || text[zonePlace - 1] != u'-')
        return {};
    const QDate date = QDate::fromString(text.sliced(datePlace, 10), u"yyyy-MM-dd"_s);
    const QTime time = QTime::fromString(text.sliced(timePlace, 8), u"HH-mm-ss"_s);
    if (!date.isValid() || !time.isValid())
        return {};
    const QString zone = text.sliced(zonePlace);
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
