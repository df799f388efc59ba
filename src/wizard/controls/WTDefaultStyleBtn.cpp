#include "WTDefaultStyleBtn.h"

#include "Palette.h"

WTDefaultStyleBtn::WTDefaultStyleBtn(QWidget *parent)
    : WTBaseBtn(parent)
{
    wt_customConfig();
}

void WTDefaultStyleBtn::wt_customConfig()
{
    m_title = {Palette::white, Palette::white, Palette::white, Palette::white};
    m_border = {Palette::red, Palette::redHover, Palette::redPressed, Palette::red};
    m_bg = {Palette::red, Palette::redHover, Palette::redPressed, Palette::redDisabled};
}
