#pragma once

#include "NetworkEntry.h"

#include <QWidget>
#include <optional>

class FieldFrame;
class KSPasswordField;
class WTButton;
class WTTextfield;

/// Name and password of a network in two framed fields, the switch that shows the password, and what is wrong with the
/// two below them. Cuts and refuses what a field does not take.
class NetworkForm : public QWidget
{
    Q_OBJECT

public:
    enum class Strength { Hidden, Shown };

    /// @param nameHelp stands below the name while nothing is wrong with it.
    /// @param strength whether the password is rated; the rating has a warning of its own for caps lock.
    NetworkForm(const QString &nameHelp, const QString &showPwdBtnName, Strength strength, QWidget *parent = nullptr);

    /// Connects the fields and the switch.
    void awakeFromNib();

    NetworkEntry entry() const;
    KSPasswordField *passwordField() const { return m_passwordTextField; }
    /// The password that the field held when it was entered or filled last, or that was accepted since.
    QString lastPwd() const { return m_lastPwd; }

    /// Shows the name from its beginning, hidden characters as their numbers; `entry` holds it as it is until the
    /// person edits it.
    void showName(const QString &name);
    void showPasswordText(const QString &password);
    /// Says in the error lines what is wrong with name and password.
    void showErrors();
    /// A quiet line below the password; empty brings the usual help back.
    void showHint(const QString &hint);
    /// Whether the person is in one of the fields.
    bool hasKeyboard() const;
    /// Gives both frames the colour of a field without the keyboard.
    void resetFrames();
    /// Turns the switch off and hides the password.
    void hidePassword();
    /// Shows or hides the password, as the switch says.
    void showPassword();

    void controlDidBecomeFirstResponder(WTTextfield *field);
    void controlTextDidChange(WTTextfield *field);
    void controlTextDidEndEditing(WTTextfield *field);

Q_SIGNALS:
    /// The person changed the text; what the field does not take is gone already.
    void nameEdited();
    void passwordEdited();
    /// The keyboard left one of the fields, whose texts are cut now.
    void editingEnded();

private:
    void layOut(Strength strength);
    void showPasswordError();

    WTTextfield *m_ssidTextField;
    KSPasswordField *m_passwordTextField;
    FieldFrame *m_ssidView;
    FieldFrame *m_passwordView;
    WTButton *m_showPwdBtn;
    bool m_saysCapsLock;
    QString m_lastPwd;
    std::optional<QString> m_shownName; ///< What `showName` was given, until the person edits the field.
};
