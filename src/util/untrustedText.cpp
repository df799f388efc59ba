#include "untrustedText.h"

#include <algorithm>

namespace
{

constexpr char16_t firstPrintable = u' ', deleteCharacter = u'\x7f';

bool isDirectionMark(QChar character)
{
    const char16_t code = character.unicode();
    return code == u'\u061c' || code == u'\u200e' || code == u'\u200f' || (code >= u'\u202a' && code <= u'\u202e') ||
           (code >= u'\u2066' && code <= u'\u2069');
}

bool isHidden(QChar character)
{
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return isDirectionMark(character);
    }
}

} // namespace

QString visibleText(const QString &text)
{
    // Nearly every text is harmless, and is then the same text without a copy.
    if (std::ranges::none_of(text, isHidden))
        return text;
    QString visible;
    for (const QChar character : text) {
        if (isHidden(character))
            visible += QStringLiteral("\\u%1").arg(QString::number(character.unicode(), 16).toUpper(), 4, u'0');
        else
            visible += character;
    }
    return visible;
}

std::optional<QString> visibleText(const std::optional<QString> &text)
{
    return text ? std::optional(visibleText(*text)) : std::nullopt;
}

bool isSendable(const QString &text)
{
    return std::ranges::none_of(
        text, [](QChar character) { return character < firstPrintable || character == deleteCharacter; });
}
