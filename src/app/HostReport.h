#pragma once

#include <QMap>
#include <QString>

/// The entries of a host report: a line counts when it has exactly one colon and something behind it; key and value are
/// trimmed. A line with more colons (a time, an address) never counts. Of two lines with the same key the first counts.
QMap<QString, QString> parseHostReport(const QString &report);
