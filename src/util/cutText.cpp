#include "cutText.h"

QString cutText(const QString &text, qsizetype length)
{
    if (text.size() <= length)
        return text;
    const bool splitsPair = length > 0 && text[length - 1].isHighSurrogate() && text[length].isLowSurrogate();
    return text.first(splitsPair ? length - 1 : length);
}
