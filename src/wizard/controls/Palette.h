#pragma once

#include <QColor>
#include <string_view>

/// All colours of the wizard, named by colour or by what they are for.
namespace Palette
{

/// The colour of six hexadecimal digits, with or without "0x" in front. Anything else is black.
constexpr QColor color(std::string_view text)
{
    if (text.starts_with("0x"))
        text.remove_prefix(2);
    if (text.size() != 6)
        return QColor(0, 0, 0);
    int value = 0;
    for (const char digit : text) {
        const int low = digit | 0x20;
        if (digit >= '0' && digit <= '9')
            value = value * 16 + (digit - '0');
        else if (low >= 'a' && low <= 'f')
            value = value * 16 + (low - 'a' + 10);
        else
            return QColor(0, 0, 0);
    }
    return QColor(value >> 16, (value >> 8) & 0xFF, value & 0xFF);
}

inline constexpr QColor red = color("0xD2212B");            ///< Action buttons, their borders, the part that matters.
inline constexpr QColor redPressed = color("0xAE1B23");     ///< The same, pressed.
inline constexpr QColor redHover = color("0xFF5862");       ///< The same, under the pointer.
inline constexpr QColor redDisabled = color("0xE9A6AA");    ///< Fill of an action button that can't be used now.
inline constexpr QColor redTint = color("0xFDECED");        ///< Fill of the way back under the pointer.
inline constexpr QColor redTintPressed = color("0xF8CFD2"); ///< The same, pressed.

inline constexpr QColor white = color("0xFFFFFF");     ///< Pages, off buttons, titles on red.
inline constexpr QColor focusBlue = color("0x69A2EE"); ///< Focused frames, chosen tiles and rows, progress.
inline constexpr QColor lightBlue = color("0xC1DBFF"); ///< Tile borders at rest.
inline constexpr QColor listHover =
    color("0xE2EEFF"); ///< Row or blue button under the pointer, unfilled part of a bar.
inline constexpr QColor tileRing =
    color("0xB1D2FF"); ///< Ring around a tile that has the keyboard, blue button pressed.

inline constexpr QColor blue = color("0x80B5FF"); ///< Side actions such as the information page: border and on state.
inline constexpr QColor blueHover = color("0x4E8DE3"); ///< The same, under the pointer.

inline constexpr QColor frame = color("0xD3D3D3");   ///< Text-field frames at rest, rules.
inline constexpr QColor label = color("0x666666");   ///< Instructions, help, check-box labels.
inline constexpr QColor heading = color("0x222222"); ///< Headings and what people type.
inline constexpr QColor link = color("0x2B63B8");    ///< Links, dark enough to be read on white.

} // namespace Palette
