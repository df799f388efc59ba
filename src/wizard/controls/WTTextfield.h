#pragma once

#include <QLineEdit>

/// A text field that says when it is entered, typed in and left. The frame around it belongs to the screen
/// (`FieldFrame`).
class WTTextfield : public QLineEdit
{
    Q_OBJECT

public:
    explicit WTTextfield(QWidget *parent = nullptr);

    /// The screen's way to fill the field. `setText` is for those who stand in for the user, such as a screen reader.
    void showText(const QString &text);
    /// Shows `text` with the cursor left where the user has it. A field that shows it already keeps its undo history.
    void putBack(const QString &text);

Q_SIGNALS:
    /// The field got the keyboard.
    void controlDidBecomeFirstResponder(WTTextfield *field);
    /// The user changed the text, by whatever means; what the screen shows does not count.
    void controlTextDidChange(WTTextfield *field);
    /// Return, or the keyboard went elsewhere.
    void controlTextDidEndEditing(WTTextfield *field);

protected:
    void focusInEvent(QFocusEvent *event) override;

private:
    bool m_showsText = false; ///< A change of the text is the screen's own.
};
