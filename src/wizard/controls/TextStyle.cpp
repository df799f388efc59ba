#include "TextStyle.h"

#include <QApplication>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace
{

struct GlyphsRow {
    QLatin1StringView language;
    QLatin1StringView family;
};

constexpr std::array glyphsRows{
    GlyphsRow{"zh-Hans"_L1, "Noto Sans CJK SC"_L1},
    GlyphsRow{"zh-Hant"_L1, "Noto Sans CJK TC"_L1},
    GlyphsRow{"ja"_L1, "Noto Sans CJK JP"_L1},
    GlyphsRow{"ko"_L1, "Noto Sans CJK KR"_L1},
};

} // namespace

void TextStyle::useGlyphsOf(const QString &language)
{
    QFont font = QGuiApplication::font();
    QStringList families{font.families().value(0, font.family())};
    for (const GlyphsRow &row : glyphsRows) {
        if (language.startsWith(row.language))
            families << row.family;
    }
    font.setFamilies(families);
    QApplication::setFont(font);
}

QFont TextStyle::font(Size size, QFont::Weight weight)
{
    QFont font = QGuiApplication::font();
    font.setPixelSize(static_cast<int>(size));
    font.setWeight(weight);
    return font;
}

void TextStyle::apply(QLabel &label, Size size, const QColor &color)
{
    label.setFont(font(size));
    label.setWordWrap(true);
    label.setTextFormat(Qt::PlainText);
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, color);
    label.setPalette(palette);
}

QLabel *TextStyle::makeLabel(const QString &text, Size size, const QColor &color, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    apply(*label, size, color);
    return label;
}
