#include "WTNetworkWithManualAddition.h"

#include "ButtonSchemes.h"
#include "CauseText.h"
#include "DesktopPort.h"
#include "EntryAlerts.h"
#include "KSPasswordField.h"
#include "Localized.h"
#include "Log.h"
#include "NetworkForm.h"
#include "NetworkHint.h"
#include "NetworkRules.h"
#include "PrinterCommand.h"
#include "PrinterNoteLabel.h"
#include "ScreenFrame.h"
#include "WTApp.h"
#include "WTButton.h"
#include "WTCustomTextFieldFromatter.h"
#include "WTDefaultStyleBtn.h"
#include "WTInstallingView.h"

#include <QPointer>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr int formWidth = 560;

} // namespace

WTNetworkWithManualAddition::WTNetworkWithManualAddition(SpoolerPort &spooler, DesktopPort &desktop, QWidget *parent)
    : WTView(parent)
    , m_model(spooler)
    , m_desktop(desktop)
    , m_frame(new ScreenFrame(this, WizardStep::Network))
    , m_printerNote(new PrinterNoteLabel(desktop))
    , m_form(new NetworkForm(localized(u"与路由器上显示的名称完全一致，区分大小写。"_s), u"showPwdBtn"_s,
                             NetworkForm::Strength::Shown))
    , m_pwdFormatter(new WTCustomTextFieldFromatter(this))
    , m_nextBtn(new WTDefaultStyleBtn)
    , m_previousBtn(new WTButton)
    , m_printWiFiHomePage(new WTButton)
{
    layOut();
}

void WTNetworkWithManualAddition::layOut()
{
    m_nextBtn->setObjectName(u"nextBtn"_s);
    m_previousBtn->setObjectName(u"previousBtn"_s);
    m_printWiFiHomePage->setObjectName(u"printWiFiHomePage"_s);
    m_nextBtn->setTitle(localized(u"下一步"_s));
    m_previousBtn->setTitle(localized(u"上一步"_s));
    m_printWiFiHomePage->setTitle(localized(u"打印无线网络信息页"_s));
    m_form->setMaximumWidth(formWidth);

    m_frame->setHeading(localized(u"输入无线网络"_s));
    m_frame->content()->addWidget(m_printerNote);
    m_frame->content()->addSpacing(8);
    m_frame->content()->addWidget(m_form);
    m_frame->setBackButton(m_previousBtn);
    m_frame->setMainButton(m_nextBtn);
    m_frame->addToBar(m_printWiFiHomePage);
}

void WTNetworkWithManualAddition::setPrinter(const WTPrinterPtr &printer)
{
    m_printer = printer;
    m_printerNote->setPrinter(printer);
}

void WTNetworkWithManualAddition::awakeFromNib()
{
    WTView::awakeFromNib();
    ff_config();
}

void WTNetworkWithManualAddition::ff_config()
{
    ButtonSchemes::applyBlue(*m_printWiFiHomePage);
    ButtonSchemes::applyBack(*m_previousBtn);
    m_pwdFormatter->setMaximumLength(NetworkRules::maximumPasswordLength);
    m_form->passwordField()->setValidator(m_pwdFormatter);
    m_form->awakeFromNib();
    connect(m_form, &NetworkForm::nameEdited, this, &WTNetworkWithManualAddition::updateBtnNextStepState);
    connect(m_form, &NetworkForm::passwordEdited, this, &WTNetworkWithManualAddition::updateBtnNextStepState);
    connect(m_form, &NetworkForm::editingEnded, this, &WTNetworkWithManualAddition::updateBtnNextStepState);
    connect(m_nextBtn, &WTDefaultStyleBtn::clicked, this, &WTNetworkWithManualAddition::nextView);
    connect(m_previousBtn, &WTButton::clicked, this, &WTNetworkWithManualAddition::backPrevious);
    connect(m_printWiFiHomePage, &WTButton::clicked, this, &WTNetworkWithManualAddition::printWiFiList);
}

void WTNetworkWithManualAddition::viewDidApear()
{
    WTView::viewDidApear();
    m_frame->setInstruction(
        WTApp::shared().currentInterface
            ? localized(u"此电脑的无线网络已关闭，无法列出附近的网络。请输入打印机要连接的网络。"_s)
            : localized(u"此电脑没有 Wi-Fi 适配器，无法列出附近的网络。请输入打印机要连接的网络。"_s));
    updateBtnNextStepState();
    wt_resetShowPwdBtn();
}

void WTNetworkWithManualAddition::updateBtnNextStepState()
{
    const NetworkEntry entry = m_form->entry();
    m_nextBtn->setDisable(!NetworkRules::isNameUsable(entry.name));
    m_form->showErrors();
    m_form->showHint(hintText(networkHint(entry, nullptr)));
}

void WTNetworkWithManualAddition::nextView()
{
    logInfo("next step");
    const NetworkEntry entry = m_form->entry();
    switch (entry.next(isWorkingWithPrintType(m_printer->printerType()))) {
    case NetworkEntry::Next::PrinterBusy:
        logWarning("printer is busy now");
        showIsworkingAlert();
        break;
    case NetworkEntry::Next::EmptyName:
        logWarning("empty ssid");
        break;
    case NetworkEntry::Next::UnusableName:
        logWarning("network name refused");
        break;
    case NetworkEntry::Next::UnusablePassword:
        EntryAlerts::refusePassword(window(), entry.password);
        break;
    case NetworkEntry::Next::Go:
        m_installingView->setPrinter(m_printer);
        m_installingView->setWifi(entry.network());
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
    m_model.printInformationPage(m_printer, [screen = QPointer(this)](const ResultAnswer &answer) {
        if (screen)
            screen->showPageSent(answer);
    });
}

void WTNetworkWithManualAddition::showPageSent(const ResultAnswer &answer)
{
    QStringList paragraphs{localized(u"已将无线网络信息页发送给打印机"_s)};
    const CauseText told = answer.cause
                               ? causeText(*answer.cause, PrinterCommand::informationPage, m_desktop.deviceAccess())
                               : CauseText{};
    if (!told.cause.isEmpty())
        paragraphs << formatText(localized(u"不过它可能打印不出来：%@"_s), {FormatArgument(told.cause)}) << told.advice;
    EntryAlerts::showNote(window(), paragraphs.join(u"\n\n"));
}

void WTNetworkWithManualAddition::showIsworkingAlert()
{
    EntryAlerts::showNote(window(), localized(u"打印端口被占用，无法打印无线网络信息页。"_s));
}

// -- declared operations that others carry out ------------------------------------------------------------------------

QString WTNetworkWithManualAddition::lastPwd() const
{
    return m_form->lastPwd();
}

void WTNetworkWithManualAddition::wt_resetShowPwdBtn()
{
    m_form->hidePassword();
}

void WTNetworkWithManualAddition::showPassword()
{
    m_form->showPassword();
}

void WTNetworkWithManualAddition::controlDidBecomeFirstResponder(WTTextfield *field)
{
    m_form->controlDidBecomeFirstResponder(field);
}

void WTNetworkWithManualAddition::controlTextDidChange(WTTextfield *field)
{
    m_form->controlTextDidChange(field);
}

void WTNetworkWithManualAddition::controlTextDidEndEditing(WTTextfield *field)
{
    m_form->controlTextDidEndEditing(field);
}

bool WTNetworkWithManualAddition::isVailePassword(const QString &password)
{
    return NetworkRules::isVailePassword(password);
}

bool WTNetworkWithManualAddition::isWorkingWithPrintType(const QString &printType) const
{
    return m_model.isWorkingWithPrintType(printType);
}

void WTNetworkWithManualAddition::backPrevious()
{
    backPreviousView();
}
