#pragma once

#include <QColor>

/// How far a button is in being used.
enum class WTBtnState { Normal, Hover, Pressed, Disable };

/// One colour for each state of a button. A colour that was never set paints nothing.
class WTBaseBtnColorModel
{
public:
    QColor normal;
    QColor hover;
    QColor pressed;
    QColor disable;

    QColor color(WTBtnState state) const;
};
