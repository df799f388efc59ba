#include "WTBaseBtnColorModel.h"

QColor WTBaseBtnColorModel::color(WTBtnState state) const
{
    switch (state) {
    case WTBtnState::Normal:
        return normal;
    case WTBtnState::Hover:
        return hover;
    case WTBtnState::Pressed:
        return pressed;
    case WTBtnState::Disable:
        return disable;
    }
    return {};
}
