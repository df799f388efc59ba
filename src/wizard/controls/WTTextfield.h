#pragma once

#include <QLineEdit>

/// A text field that says when it is entered, typed in and left. The frame around it belongs to the screen
/// (`FieldFrame`).
class WTTextfield : public QLineEdit
{
    Q_OBJECT

public:
    explicit WTTextfield(QWidget *parent = nullptr);

    /// Shows `text` with the cursor left where the user has it. A field that shows it already keeps its undo history.
    void putBack(const QString &text);

Q_SIGNALS:
    /// The field got the keyboard.
    void controlDidBecomeFirstResponder(WTTextfield *field);
    /// The user changed the text; `setText` does not count.
    void controlTextDidChange(WTTextfield *field);
    /// Return, or the keyboard went elsewhere.
    void controlTextDidEndEditing(WTTextfield *field);

protected:
    void focusInEvent(QFocusEvent *event) override;
};
