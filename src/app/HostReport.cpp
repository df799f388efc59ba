#include "HostReport.h"

#include <QStringList>

QMap<QString, QString> parseHostReport(const QString &report)
{
    QMap<QString, QString> entries;
    const QStringList lines = report.split(u'\n');
    for (auto line = lines.crbegin(); line != lines.crend(); ++line) {
        const QStringList parts = line->split(u':');
        if (parts.size() == 2 && !parts[1].isEmpty())
            entries.insert(parts[0].trimmed(), parts[1].trimmed());
    }
    return entries;
}
