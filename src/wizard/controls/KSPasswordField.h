#pragma once

#include "WTTextfield.h"

#include <memory>

class QAction;
class QToolButton;

/// How a password field shows its text.
class KSPasswordCell
{
public:
    virtual ~KSPasswordCell() = default;
    virtual QLineEdit::EchoMode echoMode() const = 0;
    /// The picture of the mark at the field's end, and what pressing the mark does.
    virtual QString markName() const = 0;
    virtual QString markAction() const = 0;
};

/// Shows the letters.
class KSPasswordTextFieldCell : public KSPasswordCell
{
public:
    QLineEdit::EchoMode echoMode() const override { return QLineEdit::Normal; }
    QString markName() const override;
    QString markAction() const override;
};

/// Shows a dot for each letter.
class KSPasswordSecureTextFieldCell : public KSPasswordCell
{
public:
    QLineEdit::EchoMode echoMode() const override { return QLineEdit::Password; }
    QString markName() const override;
    QString markAction() const override;
};

/// A password field that can show or hide its text and rate its strength. Hidden at first.
class KSPasswordField : public WTTextfield
{
    Q_OBJECT

public:
    explicit KSPasswordField(QWidget *parent = nullptr);
    ~KSPasswordField() override;

    bool showsText() const;
    void setShowsText(bool shows);

    /// How hard the password is to guess, from 0 to 1.
    static double strengthOfPassword(const QString &password);
    /// A word for the strength: "", "too common", "too short", "insecure", "weak", "fair" or "strong". The words are
    /// keys for `localized`.
    static QString descriptionOfPassword(const QString &password);
    /// The strength as a level, from 0 for an empty password to 4 for a strong one.
    static int levelOfPassword(const QString &password);
    /// Whether the word list "blacklist" of common passwords holds the password. Upper and lower case are the same.
    static bool isCommon(const QString &password);

    bool capsLock() const { return m_capsLock; }

Q_SIGNALS:
    /// The mark at the field's end was pressed. The field itself changes nothing: the screen calls `setShowsText` and
    /// keeps its check box in step.
    void showHidePressed();
    /// Caps lock was found to be on or off. The field notices it only while somebody types; without the keyboard it
    /// counts as off.
    void capsLockChanged(bool on);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void setCapsLock(bool on);
    /// Draws the mark for what the cell does, darker under the pointer.
    void showMark();

    std::unique_ptr<KSPasswordCell> m_cell;
    QAction *m_mark;
    QToolButton *m_markButton; ///< What the toolkit shows for the action.
    bool m_capsLock = false;
};
