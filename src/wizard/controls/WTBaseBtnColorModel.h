#pragma once

#include <QColor>

/// What the user is doing with a button.
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
