#include "WTBaseBtn.h"

#include "ButtonLook.h"
#include "TextStyle.h"

#include <QPainter>

using namespace Qt::Literals::StringLiterals;

WTBaseBtn::WTBaseBtn(QWidget *parent)
    : QPushButton(parent)
{
    setFont(TextStyle::font(TextStyle::Size::Body, QFont::DemiBold));
    setAutoDefault(false);
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setTitle(u"初始化"_s);
}

void WTBaseBtn::setTitle(const QString &title)
{
    setText(title);
    setAccessibleName(ButtonLook::spokenTitle(title));
    updateGeometry();
}

WTBtnState WTBaseBtn::buttonState() const
{
    if (!isEnabled())
        return WTBtnState::Disable;
    if (isDown())
        return WTBtnState::Pressed;
    return underMouse() ? WTBtnState::Hover : WTBtnState::Normal;
}

QSize WTBaseBtn::sizeHint() const
{
    return ButtonLook::sizeHint(*this, Picture(), false);
}

void WTBaseBtn::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const WTBtnState state = buttonState();
    ButtonLook look;
    look.text = m_title.color(state);
    look.border = m_border.color(state);
    look.background = m_bg.color(state);
    look.paint(painter, *this);
}
