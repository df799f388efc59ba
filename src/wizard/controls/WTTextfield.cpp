#include "WTTextfield.h"

#include "Palette.h"
#include "TextStyle.h"

WTTextfield::WTTextfield(QWidget *parent)
    : QLineEdit(parent)
{
    setFont(TextStyle::font(TextStyle::Size::Body));
    setFrame(false);
    QPalette colors = palette();
    colors.setColor(QPalette::Base, Palette::white);
    colors.setColor(QPalette::Text, Palette::heading);
    setPalette(colors);
    connect(this, &QLineEdit::textEdited, this, [this] { Q_EMIT controlTextDidChange(this); });
    connect(this, &QLineEdit::editingFinished, this, [this] { Q_EMIT controlTextDidEndEditing(this); });
}

void WTTextfield::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    Q_EMIT controlDidBecomeFirstResponder(this);
}

void WTTextfield::putBack(const QString &shown)
{
    if (text() == shown)
        return;
    const int cursor = cursorPosition();
    setText(shown);
    setCursorPosition(cursor);
}
