#include "TextStyle.h"

#include <QGuiApplication>

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
