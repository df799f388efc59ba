#include "ButtonSchemes.h"

#include "Palette.h"
#include "TextStyle.h"
#include "WTButton.h"

using namespace Qt::Literals::StringLiterals;

namespace
{

const auto checkedPicture = u"icon_selected 1"_s;
const auto uncheckedPicture = u"Rectangle 394"_s;

} // namespace

void ButtonSchemes::applyRed(WTButton &button)
{
    button.setFont(TextStyle::font(TextStyle::Size::Body, QFont::DemiBold));
    button.textOffColor = Palette::white;
    button.offBlackColor = Palette::red;
    button.hoverColor = button.hoverBorderColor = Palette::redHover;
    button.pressedColor = button.pressedBorderColor = Palette::redPressed;
    button.awakeFromNib();
}

void ButtonSchemes::applyBack(WTButton &button)
{
    button.hoverColor = Palette::redTint;
    button.hoverBorderColor = Palette::redHover;
    button.pressedColor = Palette::redTintPressed;
    button.pressedBorderColor = Palette::redPressed;
    button.setImages(u"icon_back"_s);
    button.awakeFromNib();
}

void ButtonSchemes::applyBlue(WTButton &button)
{
    button.textOffColor = Palette::heading;
    button.borderOffColor = button.borderOnColor = Palette::blue;
    button.onBlackColor = Palette::blue;
    button.defaultBorderColor = Palette::blue;
    button.hoverColor = Palette::listHover;
    button.pressedColor = Palette::tileRing;
    button.hoverBorderColor = button.pressedBorderColor = Palette::blueHover;
    button.awakeFromNib();
}

void ButtonSchemes::applyCheckBox(WTButton &button)
{
    button.textOffColor = Palette::label;
    button.setCheckable(true);
    button.setLeading(true);
    showChecked(button, false);
    button.awakeFromNib();
    button.setIsBorder(false);
    button.setVisible(true);
}

void ButtonSchemes::showChecked(WTButton &checkBox, bool checked)
{
    checkBox.setChecked(checked);
    const QString &picture = checked ? checkedPicture : uncheckedPicture;
    checkBox.setImages(picture, picture + u" hover"_s);
}
