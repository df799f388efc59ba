#include "NetworkForm.h"

#include "ButtonSchemes.h"
#include "FieldFrame.h"
#include "KSPasswordField.h"
#include "Localized.h"
#include "Log.h"
#include "NetworkRules.h"
#include "Palette.h"
#include "PasswordStrengthView.h"
#include "WTButton.h"
#include "untrustedText.h"

#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

NetworkForm::NetworkForm(const QString &nameHelp, const QString &showPwdBtnName, Strength strength, QWidget *parent)
    : QWidget(parent)
    , m_ssidTextField(new WTTextfield)
    , m_passwordTextField(new KSPasswordField)
    , m_ssidView(new FieldFrame(localized(u"网络名称"_s), m_ssidTextField))
    , m_passwordView(new FieldFrame(localized(u"网络密码"_s), m_passwordTextField))
    , m_showPwdBtn(new WTButton)
    , m_saysCapsLock(strength == Strength::Hidden)
{
    m_ssidTextField->setObjectName(u"ssidTextField"_s);
    m_passwordTextField->setObjectName(u"passwordTextField"_s);
    m_showPwdBtn->setObjectName(showPwdBtnName);
    m_ssidView->setHelp(nameHelp);
    showHint({});
    m_showPwdBtn->setTitle(localized(u"显示密码"_s));
    ButtonSchemes::applyCheckBox(*m_showPwdBtn);
    resetFrames();
    layOut(strength);
}

void NetworkForm::layOut(Strength strength)
{
    auto *form = new QVBoxLayout(this);
    form->setContentsMargins({});
    form->setSpacing(16);
    form->addWidget(m_ssidView);
    form->addWidget(m_passwordView);
    if (strength == Strength::Shown) {
        auto *below = new QWidget;
        auto *strengthAndSwitch = new QHBoxLayout(below);
        strengthAndSwitch->setContentsMargins({});
        strengthAndSwitch->addWidget(new PasswordStrengthView(m_passwordTextField), 1);
        strengthAndSwitch->addWidget(m_showPwdBtn);
        m_passwordView->addBelow(below);
    } else {
        form->addWidget(m_showPwdBtn, 0, Qt::AlignLeft);
    }
    form->addStretch(1);
}

void NetworkForm::awakeFromNib()
{
    for (WTTextfield *field : {m_ssidTextField, static_cast<WTTextfield *>(m_passwordTextField)}) {
        connect(field, &WTTextfield::controlDidBecomeFirstResponder, this,
                &NetworkForm::controlDidBecomeFirstResponder);
        connect(field, &WTTextfield::controlTextDidChange, this, &NetworkForm::controlTextDidChange);
        connect(field, &WTTextfield::controlTextDidEndEditing, this, &NetworkForm::controlTextDidEndEditing);
    }
    connect(m_passwordTextField, &KSPasswordField::showHidePressed, m_showPwdBtn, &WTButton::click);
    connect(m_passwordTextField, &KSPasswordField::capsLockChanged, this, &NetworkForm::showPasswordError);
    connect(m_showPwdBtn, &WTButton::clicked, this, &NetworkForm::showPassword);
}

NetworkEntry NetworkForm::entry() const
{
    return {m_shownName.value_or(m_ssidTextField->text()), m_passwordTextField->text()};
}

void NetworkForm::showName(const QString &name)
{
    m_shownName = name;
    m_ssidTextField->showText(visibleText(name));
    m_ssidTextField->home(false);
}

void NetworkForm::showPasswordText(const QString &password)
{
    m_passwordTextField->showText(password);
    // The field may have the keyboard already; a refused edit must not bring back what it held before.
    m_lastPwd = password;
}

void NetworkForm::showErrors()
{
    m_ssidView->setError(NetworkRules::nameError(entry().name));
    showPasswordError();
}

void NetworkForm::showHint(const QString &hint)
{
    m_passwordView->setHelp(hint.isEmpty() ? localized(u"没有密码的网络请留空。"_s) : hint);
}

bool NetworkForm::hasKeyboard() const
{
    return m_ssidTextField->hasFocus() || m_passwordTextField->hasFocus();
}

void NetworkForm::showPasswordError()
{
    QString error = NetworkRules::passwordError(m_passwordTextField->text());
    if (error.isEmpty() && m_saysCapsLock && m_passwordTextField->capsLock())
        error = localized(u"大写锁定已打开"_s);
    m_passwordView->setError(error);
}

void NetworkForm::resetFrames()
{
    m_ssidView->setBorderColor(Palette::frame);
    m_passwordView->setBorderColor(Palette::frame);
}

void NetworkForm::hidePassword()
{
    ButtonSchemes::showChecked(*m_showPwdBtn, false);
    m_passwordTextField->setShowsText(false);
}

void NetworkForm::showPassword()
{
    const bool shows = m_showPwdBtn->isChecked();
    ButtonSchemes::showChecked(*m_showPwdBtn, shows);
    m_passwordTextField->setShowsText(shows);
    logInfo("show pwd👉🏻%@", shows ? "yes" : "no");
}

void NetworkForm::controlDidBecomeFirstResponder(WTTextfield *field)
{
    const bool isName = field == m_ssidTextField;
    m_ssidView->setBorderColor(isName ? Palette::focusBlue : Palette::frame);
    m_passwordView->setBorderColor(isName ? Palette::frame : Palette::focusBlue);
    m_lastPwd = m_passwordTextField->text();
}

void NetworkForm::controlTextDidChange(WTTextfield *field)
{
    if (field == m_ssidTextField) {
        m_shownName.reset();
        field->putBack(NetworkRules::cutName(field->text()));
        Q_EMIT nameEdited();
        return;
    }
    m_lastPwd = NetworkRules::passwordAfterEdit(field->text(), m_lastPwd);
    field->putBack(m_lastPwd);
    Q_EMIT passwordEdited();
}

void NetworkForm::controlTextDidEndEditing(WTTextfield *)
{
    if (!m_shownName)
        m_ssidTextField->putBack(NetworkRules::cutName(m_ssidTextField->text()));
    m_passwordTextField->putBack(NetworkRules::cutPassword(m_passwordTextField->text()));
    Q_EMIT editingEnded();
}
