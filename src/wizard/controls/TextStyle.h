#pragma once

#include <QFont>
#include <QLabel>

/// The wizard's type: the system's font in four sizes.
namespace TextStyle
{

enum class Size { Heading = 24, Large = 16, Body = 14, Small = 12 }; ///< Device-independent pixels.

/// Makes the program's font draw Chinese, Japanese and Korean characters as the readers of `language` write them; left
/// alone, the font system picks one of the countries' forms by the locale of the process. Before the first widget.
void useGlyphsOf(const QString &language);

QFont font(Size size, QFont::Weight weight = QFont::Normal);

/// Makes a label wrap its text and show it in one of the palette's text colours.
void apply(QLabel &label, Size size, const QColor &color);

/// A label of that style.
QLabel *makeLabel(const QString &text, Size size, const QColor &color, QWidget *parent = nullptr);

} // namespace TextStyle
