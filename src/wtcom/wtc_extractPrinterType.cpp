#include "wtc_extractPrinterType.h"

#include <QList>
#include <algorithm>

QString wtc_extractPrinterType(const QString &name)
{
    const QString text = name.simplified();
    for (const QStringView word : QStringView(text).split(u' ')) {
        if (std::ranges::any_of(word, [](QChar character) { return character.isDigit(); }))
            return word.toString();
    }
    return name.trimmed();
}
