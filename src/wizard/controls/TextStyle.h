#pragma once

#include <QFont>
#include <QLabel>

/// The wizard's type: the system's font in four sizes.
namespace TextStyle
{

enum class Size { Heading = 24, Large = 16, Body = 14, Small = 12 }; ///< Device-independent pixels.

QFont font(Size size, QFont::Weight weight = QFont::Normal);

/// A label that wraps its text, in one of the palette's text colours.
QLabel *makeLabel(const QString &text, Size size, const QColor &color, QWidget *parent = nullptr);

} // namespace TextStyle
