#pragma once

#include <QString>
#include <chrono>
#include <ctime>

/// A moment in the machine's time zone, taken apart.
class LocalTime
{
public:
    explicit LocalTime(std::chrono::system_clock::time_point moment);

    /// "2026-03-09 08:05:07"
    QString dateAndTime() const;
    int second() const { return m_fields.tm_sec; }
    int millisecond() const { return m_millisecond; }
    /// "+0100"
    QString offset() const;

private:
    std::tm m_fields{};
    int m_millisecond = 0;
};

/// Appends `number` in `width` digits, zeroes ahead.
void appendDigits(QString &text, int number, int width);
