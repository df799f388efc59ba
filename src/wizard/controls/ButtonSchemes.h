#pragma once

class WTButton;

/// The looks that the screens give their buttons. Each function ends with the button's `awakeFromNib`.
namespace ButtonSchemes
{

/// The main action: white on red.
void applyRed(WTButton &button);
/// The way back: red border and title on white, an arrow in front.
void applyBack(WTButton &button);
/// A side action, such as printing the information page: dark title in a blue border on white.
void applyBlue(WTButton &button);
/// A check box: no border, its picture left of its title.
void applyCheckBox(WTButton &button);

/// Shows a check box as checked or not, in its picture and to screen readers.
void showChecked(WTButton &checkBox, bool checked);

} // namespace ButtonSchemes
