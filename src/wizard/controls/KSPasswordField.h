#pragma once

#include "WTTextfield.h"

#include <memory>

class QAction;

/// How a password field shows its text.
class KSPasswordCell
{
public:
    virtual ~KSPasswordCell() = default;
    virtual QLineEdit::EchoMode echoMode() const = 0;
    /// The picture of the mark that leads to the other cell, and what pressing it does.
    virtual QString markName() const = 0;
    virtual QString markAction() const = 0;
};

/// The text in clear.
class KSPasswordTextFieldCell : public KSPasswordCell
{
public:
    QLineEdit::EchoMode echoMode() const override { return QLineEdit::Normal; }
    QString markName() const override;
    QString markAction() const override;
};

/// The text hidden.
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

    /// 0 to 1.
    static double strengthOfPassword(const QString &password);
    /// One of "", "too common", "too short", "insecure", "weak", "fair", "strong"; the keys of their translations.
    static QString descriptionOfPassword(const QString &password);
    /// The same as a level from 0 (nothing to rate) to 4 (strong).
    static int levelOfPassword(const QString &password);
    /// Whether the word list "blacklist" holds the password, in whatever case.
    static bool isCommon(const QString &password);

    bool capsLock() const { return m_capsLock; }

Q_SIGNALS:
    /// The mark at the field's end was pressed. The screen answers with `setShowsText` and its check box.
    void showHidePressed();
    /// Noticed while typing; forgotten when the keyboard goes elsewhere.
    void capsLockChanged(bool on);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void setCapsLock(bool on);

    std::unique_ptr<KSPasswordCell> m_cell;
    QAction *m_mark;
    bool m_capsLock = false;
};
