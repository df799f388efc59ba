#pragma once

#include <QFont>
#include <QLabel>

/// The wizard's type: the system's font in four sizes.
namespace TextStyle
{

enum class Size { Heading = 24, Large = 16, Body = 14, Small = 12 }; ///< Device-independent pixels.

/// Chooses the glyphs for Chinese, Japanese and Korean characters, which look different in each of these languages:
/// those of `language`, instead of those of the process's locale. To be called before the first widget is made.
void useGlyphsOf(const QString &language);

QFont font(Size size, QFont::Weight weight = QFont::Normal);

/// Makes a label wrap its text and show it in one of the palette's text colours.
void apply(QLabel &label, Size size, const QColor &color);

/// A new label with the style that `apply` gives.
QLabel *makeLabel(const QString &text, Size size, const QColor &color, QWidget *parent = nullptr);

} // namespace TextStyle
