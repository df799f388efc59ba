// What the two fields show, take and refuse.
#include "ButtonSchemes.h"
#include "FieldFrame.h"
#include "KSPasswordField.h"
#include "Localized.h"
#include "Log.h"
#include "NetworkRules.h"
#include "Palette.h"
#include "WTButton.h"
#include "WTDefaultStyleBtn.h"
#include "WTTextfield.h"
#include "WTWiFiListView.h"
#include "WTWiFiListViewModel.h"

using namespace Qt::Literals::StringLiterals;

void WTWiFiListView::updateTextfieldSSIDAndPWD()
{
    logInfo("select row👉🏻%ld", m_selectRow);
    if (viewModel()->list_WIFI().empty()) {
        logWarning("no available WIFI");
        return;
    }
    const WTWiFiPtr choice = selectedWiFi();
    logInfo("wifi ssid:%@", choice->SSID);
    if (choice->SSID && !choice->SSID->isEmpty())
        m_ssidTextField->showText(*choice->SSID);
    m_passwordTextField->showText(m_selectRow == 0 ? choice->password.value_or(QString()) : QString());
    // The field may have the keyboard already; a refused edit must not bring back what it held before.
    m_lastPwd = m_passwordTextField->text();
    m_passwordTyped = false;
}

void WTWiFiListView::updateBtnNextStepState()
{
    const QString name = m_ssidTextField->text();
    const QString password = m_passwordTextField->text();
    m_nextBtn->setDisable(!viewModel()->canGoNext(name, password));
    m_ssidView->setError(NetworkRules::nameError(name));
    showPasswordError();
}

void WTWiFiListView::showPasswordError()
{
    if (NetworkRules::isPasswordTooLong(m_passwordTextField->text()))
        m_passwordView->setError(NetworkRules::passwordLimitText());
    else
        m_passwordView->setError(m_passwordTextField->capsLock() ? localized(u"大写锁定已打开"_s) : QString());
}

void WTWiFiListView::controlDidBecomeFirstResponder(WTTextfield *field)
{
    const bool isName = field == m_ssidTextField;
    m_ssidView->setBorderColor(isName ? Palette::focusBlue : Palette::frame);
    m_passwordView->setBorderColor(isName ? Palette::frame : Palette::focusBlue);
    m_lastPwd = m_passwordTextField->text();
}

void WTWiFiListView::controlTextDidChange(WTTextfield *field)
{
    if (field == m_ssidTextField) {
        const QString name = viewModel()->subString(field->text(), NetworkRules::maximumNameLength);
        logInfo("ssid:%@", name);
        field->putBack(name);
        m_editedSSID = true;
    }
    const qsizetype maxLength = viewModel()->maxLengthBy(selectedWiFi()->security);
    logInfo("maxLength:%lu", quint64(maxLength));
    if (field == m_passwordTextField) {
        m_passwordTyped = true;
        const QString password = viewModel()->subString(field->text(), maxLength);
        if (viewModel()->isVailePassword(password))
            m_lastPwd = password;
        field->putBack(m_lastPwd);
    }
    updateBtnNextStepState();
}

void WTWiFiListView::controlTextDidEndEditing(WTTextfield *)
{
    const QString name = viewModel()->subString(m_ssidTextField->text(), NetworkRules::maximumNameLength);
    logInfo("ssid:%@", name);
    m_ssidTextField->putBack(name);
    const qsizetype maxLength = viewModel()->maxLengthBy(selectedWiFi()->security);
    m_passwordTextField->putBack(viewModel()->subString(m_passwordTextField->text(), maxLength));
}

void WTWiFiListView::showPassword()
{
    const bool shows = m_showPwdBtn->isChecked();
    ButtonSchemes::showChecked(*m_showPwdBtn, shows);
    m_passwordTextField->setShowsText(shows);
    logInfo("show pwd👉🏻%@", shows ? "yes" : "no");
}

void WTWiFiListView::resetFieldFrames()
{
    m_ssidView->setBorderColor(Palette::frame);
    m_passwordView->setBorderColor(Palette::frame);
}
