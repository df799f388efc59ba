#pragma once

#include <QLineEdit>

/// A text field that says when the user enters it, changes its text and leaves it. It draws no border: the screen puts
/// it into a `FieldFrame`.
class WTTextfield : public QLineEdit
{
    Q_OBJECT

public:
    explicit WTTextfield(QWidget *parent = nullptr);

    /// Fills the field for the screen, without `controlTextDidChange`. `setText` counts as a change by the user: screen
    /// readers call it when the user tells them what to write.
    void showText(const QString &text);
    /// The same as `showText`, but the cursor stays where it is. Does nothing when the field shows `text` already, so
    /// that the undo history is kept.
    void putBack(const QString &text);

Q_SIGNALS:
    /// The field got the keyboard.
    void controlDidBecomeFirstResponder(WTTextfield *field);
    /// The user changed the text, by typing or in any other way. Not for `showText` and `putBack`.
    void controlTextDidChange(WTTextfield *field);
    /// The user pressed Return, or the field lost the keyboard.
    void controlTextDidEndEditing(WTTextfield *field);

protected:
    void focusInEvent(QFocusEvent *event) override;

private:
    bool m_showsText = false; ///< `showText` is at work, so a change of the text is not the user's.
};
