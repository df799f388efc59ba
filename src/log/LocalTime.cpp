#include "LocalTime.h"

#include <array>

LocalTime::LocalTime(std::chrono::system_clock::time_point moment)
{
    using namespace std::chrono;
    const auto wholeSeconds = floor<seconds>(moment);
    const std::time_t time = system_clock::to_time_t(wholeSeconds);
    localtime_r(&time, &m_fields);
    m_millisecond = static_cast<int>(duration_cast<milliseconds>(moment - wholeSeconds).count());
}

QString LocalTime::dateAndTime() const
{
    constexpr qsizetype longest = 24;
    QString text;
    text.reserve(longest);
    appendDigits(text, m_fields.tm_year + 1900, 4);
    text += u'-';
    appendDigits(text, m_fields.tm_mon + 1, 2);
    text += u'-';
    appendDigits(text, m_fields.tm_mday, 2);
    text += u' ';
    appendDigits(text, m_fields.tm_hour, 2);
    text += u':';
    appendDigits(text, m_fields.tm_min, 2);
    text += u':';
    appendDigits(text, m_fields.tm_sec, 2);
    return text;
}

QString LocalTime::offset() const
{
    std::array<char, 8> text{};
    return QString::fromLatin1(text.data(),
                               static_cast<qsizetype>(std::strftime(text.data(), text.size(), "%z", &m_fields)));
}

void appendDigits(QString &text, int number, int width)
{
    int divisor = 1;
    for (int digit = 1; digit < width; ++digit)
        divisor *= 10;
    for (; divisor > 0; divisor /= 10)
        text += QChar(u'0' + number / divisor % 10);
}
