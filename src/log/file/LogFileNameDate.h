#pragma once

#include <QDateTime>
#include <QString>

/// The date in a log file's name, as in "2026-11-22--22-10-34-UTC": local time, with the zone's abbreviation.
namespace LogFileNameDate
{

QString text(const QDateTime &date);

/// Invalid unless the whole text is a date and its zone is UTC, an offset ("+03", "+0530") or one of this machine's own
/// abbreviations: any other abbreviation means different offsets in different places.
QDateTime parse(const QString &text);

} // namespace LogFileNameDate
