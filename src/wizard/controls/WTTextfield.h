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
    /// `showText` in answer to a change by the user, which it takes back in part or in whole. When `text` is what stood
    /// there before, cursor and selection are as they were before, so that a refused key changes nothing; else the
    /// cursor stays where it is. Does nothing when the field shows `text` already, so that the undo history is kept.
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
    /// What the field held before a change; kept until the change has been reported.
    struct Content {
        QString text;
        int cursor = 0;
        int selectionStart = -1; ///< -1: nothing is selected.
        int selectionEnd = -1;
    };

    Content content() const;

    Content m_before;
    bool m_showsText = false; ///< `showText` is at work, so a change of the text is not the user's.
};
