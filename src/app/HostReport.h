#pragma once

#include <QMap>
#include <QString>

/// The entries of a host report: every line with exactly one colon and something behind it, trimmed. Of two lines with
/// the same key the first one counts; a line with more colons (a time, an address) never does.
QMap<QString, QString> parseHostReport(const QString &report);
