#include "WTButton.h"

#include "ButtonLook.h"
#include "Palette.h"
#include "TextStyle.h"
#include "WTApp.h"
#include "isSafe.h"

#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace
{

/// The spaces that follow a title without a picture in that language.
QString paddingOfLanguage(const QString &language)
{
    const bool wide = language.startsWith(u"zh") || language.startsWith(u"ja") || language.startsWith(u"ko");
    return QString(wide ? 6 : 4, u' ');
}

/// The fill of a disabled button whose fill is `color` when it is enabled.
QColor faded(const QColor &color)
{
    return color == Palette::red ? Palette::redDisabled : color;
}

} // namespace

WTButton::WTButton(QWidget *parent)
    : QPushButton(parent)
    , borderOnColor(Palette::red)
    , onBlackColor(Palette::red)
    , textOffColor(Palette::red)
    , borderOffColor(Palette::red)
    , offBlackColor(Palette::white)
{
    setFont(TextStyle::font(TextStyle::Size::Body));
    setAutoDefault(false);
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void WTButton::awakeFromNib()
{
    m_isBorder = true;
    if (isSafe(text()))
        setTitle(text());
    setState(m_state);
    m_idEnabled = isEnabled();
    setEnabled(true);
}

void WTButton::setTitle(const QString &title)
{
    QString padded = title;
    if (!m_normalImage.isNull())
        padded += u"  "_s;
    else if (!padded.endsWith(u"  "))
        padded += paddingOfLanguage(WTApp::shared().appLanguage().value_or(QString()));
    setText(padded);
    setAccessibleName(ButtonLook::spokenTitle(padded));
    updateGeometry();
}

void WTButton::setState(short state)
{
    m_state = state;
    switch (state) {
    case StateMixed:
        apply({textMixedColor, borderMixedColor, mixedBlackColor}, u"Mixed"_s);
        break;
    case StateOn:
        apply({textOnColor, borderOnColor, onBlackColor}, u"On"_s);
        break;
    case StateOff:
        apply({textOffColor, borderOffColor, offBlackColor}, u"Off"_s);
        break;
    }
    update();
}

void WTButton::apply(const Colors &colors, const QString &stateString)
{
    if (colors.text.isValid())
        m_colors.text = colors.text;
    if (colors.border.isValid())
        m_colors.border = colors.border;
    if (colors.background.isValid())
        m_colors.background = colors.background;
    m_stateString = stateString;
}

void WTButton::setIsBorder(bool isBorder)
{
    m_isBorder = isBorder;
    update();
}

void WTButton::setImages(const QString &normal, const QString &hover)
{
    m_normalImage = Picture(normal);
    m_hoverImage = Picture(hover);
    updateGeometry();
    update();
}

void WTButton::setLeading(bool leading)
{
    m_leading = leading;
    updateGeometry();
    update();
}

WTButton::Colors WTButton::currentColors() const
{
    Colors colors = m_colors;
    const auto overlay = [&colors](const QColor &background, const QColor &border) {
        if (background.isValid())
            colors.background = background;
        if (border.isValid())
            colors.border = border;
    };
    if (!isEnabled())
        colors.background = faded(colors.background);
    else if (isDown())
        overlay(pressedColor, pressedBorderColor);
    else if (underMouse())
        overlay(hoverColor, hoverBorderColor);
    else
        overlay(defaultColor, defaultBorderColor);
    return colors;
}

QSize WTButton::sizeHint() const
{
    return ButtonLook::sizeHint(*this, m_normalImage, m_leading);
}

void WTButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const Colors colors = currentColors();
    const Picture &image = underMouse() && !m_hoverImage.isNull() ? m_hoverImage : m_normalImage;
    ButtonLook{colors.text,  colors.border, colors.background, m_isBorder ? borderWidth : 0,
               cornerRadius, image,         m_leading}
        .paint(painter, *this);
}
