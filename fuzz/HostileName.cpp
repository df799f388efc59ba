#include "HostileName.h"

#include "WirelessDevice.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

QString HostileName::fromTheAir(QByteArrayView bytes)
{
    GBytes *raw = g_bytes_new(bytes.data(), gsize(bytes.size()));
    const QString name = readableName(raw);
    g_bytes_unref(raw);
    return name;
}

bool HostileName::showsAll(const QString &text)
{
    static const QString marks = u"\u061c\u200e\u200f"_s;
    return std::ranges::none_of(text, [](QChar character) {
        const QChar::Direction direction = character.direction();
        return character.category() == QChar::Other_Control || character.category() == QChar::Separator_Line ||
               character.category() == QChar::Separator_Paragraph || marks.contains(character) ||
               (direction >= QChar::DirLRE && direction <= QChar::DirPDF && direction != QChar::DirAL) ||
               (direction >= QChar::DirLRI && direction <= QChar::DirPDI);
    });
}
