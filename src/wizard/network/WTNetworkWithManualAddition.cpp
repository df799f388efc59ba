#include "WTNetworkWithManualAddition.h"

#include "ButtonSchemes.h"
#include "FieldFrame.h"
#include "KSPasswordField.h"
#include "Localized.h"
#include "Log.h"
#include "MainThread.h"
#include "NetworkRules.h"
#include "Palette.h"
#include "PasswordStrengthView.h"
#include "PrintQueueBusyCheck.h"
#include "ScreenFrame.h"
#include "WTButton.h"
#include "WTCustomTextFieldFromatter.h"
#include "WTDefaultStyleBtn.h"
#include "WTInstallingView.h"
#include "WTManager.h"
#include "WTTextfield.h"
#include "refuseLongPassword.h"
#include "showAlert.h"

#include <QPointer>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr int formWidth = 560;

void showNoteAlert(QWidget *window, const QString &informativeText)
{
    showAlert(window, {.messageText = localized(u"温馨提示："_s),
                       .informativeText = informativeText,
                       .buttons = {localized(u"确定"_s)}});
}

} // namespace

WTNetworkWithManualAddition::WTNetworkWithManualAddition(QWidget *parent)
    : WTView(parent)
    , m_ssidTextField(new WTTextfield)
    , m_passwordTextField(new KSPasswordField)
    , m_ssidView(new FieldFrame(localized(u"网络名称"_s), m_ssidTextField))
    , m_passwordView(new FieldFrame(localized(u"网络密码"_s), m_passwordTextField))
    , m_pwdFormatter(new WTCustomTextFieldFromatter(this))
    , m_showPwdBtn(new WTButton)
    , m_nextBtn(new WTDefaultStyleBtn)
    , m_previousBtn(new WTButton)
    , m_printWiFiHomePage(new WTButton)
{
    layOut();
}

void WTNetworkWithManualAddition::layOut()
{
    m_ssidTextField->setObjectName(u"ssidTextField"_s);
    m_passwordTextField->setObjectName(u"passwordTextField"_s);
    m_showPwdBtn->setObjectName(u"showPwdBtn"_s);
    m_nextBtn->setObjectName(u"nextBtn"_s);
    m_previousBtn->setObjectName(u"previousBtn"_s);
    m_printWiFiHomePage->setObjectName(u"printWiFiHomePage"_s);

    m_ssidView->setHelp(localized(u"与路由器上显示的名称完全一致，区分大小写。"_s));
    m_passwordView->setHelp(localized(u"没有密码的网络请留空。"_s));
    auto *below = new QWidget;
    auto *strengthAndSwitch = new QHBoxLayout(below);
    strengthAndSwitch->setContentsMargins(0, 0, 0, 0);
    strengthAndSwitch->addWidget(new PasswordStrengthView(m_passwordTextField), 1);
    strengthAndSwitch->addWidget(m_showPwdBtn);
    m_passwordView->addBelow(below);
    m_showPwdBtn->setTitle(localized(u"显示密码"_s));
    m_nextBtn->setTitle(localized(u"下一步"_s));
    m_previousBtn->setTitle(localized(u"上一步"_s));
    m_printWiFiHomePage->setTitle(localized(u"打印无线网络信息页"_s));

    auto *frame = new ScreenFrame(this, WizardStep::Network);
    frame->setHeading(localized(u"输入无线网络"_s));
    frame->setInstruction(localized(u"此电脑的无线网络已关闭，无法列出附近的网络。请输入打印机要连接的网络。"_s));
    auto *form = new QVBoxLayout;
    form->setSpacing(0);
    form->addWidget(m_ssidView);
    form->addSpacing(16);
    form->addWidget(m_passwordView);
    form->addStretch(1);
    m_ssidView->setMaximumWidth(formWidth);
    m_passwordView->setMaximumWidth(formWidth);
    frame->content()->addLayout(form);
    frame->setBackButton(m_previousBtn);
    frame->setMainButton(m_nextBtn);
    frame->addToBar(m_printWiFiHomePage);
}

void WTNetworkWithManualAddition::awakeFromNib()
{
    WTView::awakeFromNib();
    ff_config();
}

void WTNetworkWithManualAddition::ff_config()
{
    m_ssidView->setBorderColor(Palette::frame);
    m_passwordView->setBorderColor(Palette::frame);
    ButtonSchemes::applyBlue(*m_printWiFiHomePage);
    ButtonSchemes::applyBack(*m_previousBtn);
    ButtonSchemes::applyCheckBox(*m_showPwdBtn);
    m_pwdFormatter->setMaximumLength(NetworkRules::maximumPasswordLength);
    m_passwordTextField->setValidator(m_pwdFormatter);

    for (WTTextfield *field : {m_ssidTextField, static_cast<WTTextfield *>(m_passwordTextField)}) {
        connect(field, &WTTextfield::controlDidBecomeFirstResponder, this,
                &WTNetworkWithManualAddition::controlDidBecomeFirstResponder);
        connect(field, &WTTextfield::controlTextDidChange, this, &WTNetworkWithManualAddition::controlTextDidChange);
        connect(field, &WTTextfield::controlTextDidEndEditing, this,
                &WTNetworkWithManualAddition::controlTextDidEndEditing);
    }
    connect(m_passwordTextField, &KSPasswordField::showHidePressed, m_showPwdBtn, &WTButton::click);
    connect(m_showPwdBtn, &WTButton::clicked, this, &WTNetworkWithManualAddition::showPassword);
    connect(m_nextBtn, &WTDefaultStyleBtn::clicked, this, &WTNetworkWithManualAddition::nextView);
    connect(m_previousBtn, &WTButton::clicked, this, &WTNetworkWithManualAddition::backPrevious);
    connect(m_printWiFiHomePage, &WTButton::clicked, this, &WTNetworkWithManualAddition::printWiFiList);
}

void WTNetworkWithManualAddition::viewDidApear()
{
    WTView::viewDidApear();
    updateBtnNextStepState();
    wt_resetShowPwdBtn();
}

void WTNetworkWithManualAddition::wt_resetShowPwdBtn()
{
    ButtonSchemes::showChecked(*m_showPwdBtn, false);
    m_passwordTextField->setShowsText(false);
}

void WTNetworkWithManualAddition::showPassword()
{
    const bool shows = m_showPwdBtn->isChecked();
    ButtonSchemes::showChecked(*m_showPwdBtn, shows);
    m_passwordTextField->setShowsText(shows);
    logInfo("show pwd👉🏻%@", shows ? "yes" : "no");
}

void WTNetworkWithManualAddition::controlDidBecomeFirstResponder(WTTextfield *field)
{
    const bool isName = field == m_ssidTextField;
    m_ssidView->setBorderColor(isName ? Palette::focusBlue : Palette::frame);
    m_passwordView->setBorderColor(isName ? Palette::frame : Palette::focusBlue);
    m_model.setLastPwd(m_passwordTextField->text());
}

void WTNetworkWithManualAddition::controlTextDidChange(WTTextfield *field)
{
    if (field == m_ssidTextField)
        field->putBack(NetworkRules::cutName(field->text()));
    else
        field->putBack(m_model.passwordAfterTyping(field->text()));
    updateBtnNextStepState();
}

void WTNetworkWithManualAddition::controlTextDidEndEditing(WTTextfield *)
{
    m_ssidTextField->putBack(NetworkRules::cutName(m_ssidTextField->text()));
    m_passwordTextField->putBack(NetworkRules::cutPassword(m_passwordTextField->text()));
    updateBtnNextStepState();
}

void WTNetworkWithManualAddition::updateBtnNextStepState()
{
    const QString name = m_ssidTextField->text();
    m_nextBtn->setDisable(!NetworkRules::isNameUsable(name));
    m_ssidView->setError(NetworkRules::nameError(name));
    const bool tooLong = NetworkRules::isPasswordTooLong(m_passwordTextField->text());
    m_passwordView->setError(tooLong ? NetworkRules::passwordLimitText() : QString());
}

bool WTNetworkWithManualAddition::isVailePassword(const QString &password)
{
    return NetworkRules::isVailePassword(password);
}

bool WTNetworkWithManualAddition::isWorkingWithPrintType(const QString &printType)
{
    return ::isWorkingWithPrintType(printType, BusyCheckVariant::ManualEntry);
}

void WTNetworkWithManualAddition::showIsworkingAlert()
{
    showNoteAlert(window(), localized(u"打印端口被占用，无法打印无线网络信息页。"_s));
}

void WTNetworkWithManualAddition::nextView()
{
    logInfo("next step");
    if (isWorkingWithPrintType(m_printer->printerType())) {
        logWarning("printer is busy now");
        showIsworkingAlert();
        return;
    }
    const QString name = m_ssidTextField->text();
    const QString password = m_passwordTextField->text();
    switch (m_model.next(name, password)) {
    case WTNetworkWithManualAdditionModel::Next::EmptyName:
        logWarning("empty ssid");
        break;
    case WTNetworkWithManualAdditionModel::Next::PasswordTooLong:
        refuseLongPassword(window());
        break;
    case WTNetworkWithManualAdditionModel::Next::Go:
        m_installingView->setPrinter(m_printer);
        m_installingView->setWifi(m_model.network(name, password));
        m_installingView->setProgress(0);
        pushView(m_installingView);
        break;
    }
}

void WTNetworkWithManualAddition::printWiFiList()
{
    logInfo("print WiFi list");
    if (isWorkingWithPrintType(m_printer->printerType())) {
        showIsworkingAlert();
        logWarning("printer is busy now");
        return;
    }
    const auto showSent = [window = QPointer(window())] {
        if (window)
            showNoteAlert(window, localized(u"已将无线网络信息页发送给打印机"_s));
    };
    const auto print = [printer = m_printer, showSent] {
        WTManager::printingWiFiInfoFromPrinter(printer->usbObj->URI(), printer->usbObj->locationID,
                                               printer->printerType(),
                                               [showSent](const ResultAnswer &) { onMainThread(showSent); });
    };
    WTManager::wt_wakeUpPrinter(m_printer->usbObj->URI(), m_printer->usbObj->locationID,
                                [print](bool, const std::optional<QString> &) { onMainThread(print); });
}

void WTNetworkWithManualAddition::backPrevious()
{
    backPreviousView();
}
