#include "WTTextfield.h"

#include "Palette.h"
#include "TextStyle.h"

#include <QScopedValueRollback>

WTTextfield::WTTextfield(QWidget *parent)
    : QLineEdit(parent)
{
    setFont(TextStyle::font(TextStyle::Size::Body));
    setFrame(false);
    QPalette colors = palette();
    colors.setColor(QPalette::Base, Palette::white);
    colors.setColor(QPalette::Text, Palette::heading);
    setPalette(colors);
    // `textEdited` would miss what the user writes through a screen reader, which calls `setText`.
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (!m_showsText)
            Q_EMIT controlTextDidChange(this);
        m_before = content();
    });
    // The toolkit tells of a changed text first, then of selection and cursor.
    connect(this, &QLineEdit::selectionChanged, this, [this] { m_before = content(); });
    connect(this, &QLineEdit::cursorPositionChanged, this, [this] { m_before = content(); });
    connect(this, &QLineEdit::editingFinished, this, [this] { Q_EMIT controlTextDidEndEditing(this); });
}

void WTTextfield::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    Q_EMIT controlDidBecomeFirstResponder(this);
}

void WTTextfield::showText(const QString &shown)
{
    const QScopedValueRollback guard(m_showsText, true);
    setText(shown);
}

void WTTextfield::putBack(const QString &shown)
{
    if (text() == shown)
        return;
    const Content before = shown == m_before.text ? m_before : Content{{}, cursorPosition()};
    showText(shown);
    if (before.selectionStart < 0)
        setCursorPosition(before.cursor);
    else if (before.cursor == before.selectionStart)
        setSelection(before.selectionEnd, before.selectionStart - before.selectionEnd);
    else
        setSelection(before.selectionStart, before.selectionEnd - before.selectionStart);
}

WTTextfield::Content WTTextfield::content() const
{
    return {text(), cursorPosition(), selectionStart(), selectionEnd()};
}
