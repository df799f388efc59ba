#include "WTWiFiListView.h"

#include "ButtonLook.h"
#include "ButtonSchemes.h"
#include "DesktopPanel.h"
#include "EntryAlerts.h"
#include "Localized.h"
#include "Log.h"
#include "NetworkForm.h"
#include "NetworkListPanel.h"
#include "NetworkRows.h"
#include "PermissionAnswer.h"
#include "PrinterNoteLabel.h"
#include "ScreenFrame.h"
#include "WTApp.h"
#include "WTButton.h"
#include "WTDefaultStyleBtn.h"
#include "WTInstallingView.h"
#include "WTListView.h"
#include "WTWindow.h"
#include "showAlert.h"
#include "untrustedText.h"

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr int listStretch = 5, formStretch = 4;
constexpr int columnGap = 32;

} // namespace

WTWiFiListView::WTWiFiListView(const NetworkPorts &ports, DesktopPort &desktop, QWidget *parent)
    : WTView(parent)
    , m_desktop(desktop)
    , m_viewModel(new WTWiFiListViewModel(ports, this))
    , m_printerNote(new PrinterNoteLabel(desktop))
    , m_rows(new NetworkRows(this))
    , m_panel(new NetworkListPanel(m_rows))
    , m_wifiListView(m_panel->list())
    , m_updateButton(new WTButton)
    , m_form(new NetworkForm(localized(u"请从列表中选择，或在此输入名称。"_s), u"btn_showPwd"_s,
                             NetworkForm::Strength::Hidden))
    , m_nextBtn(new WTDefaultStyleBtn)
    , m_previous(new WTButton)
{
    m_viewModel->view = this;
    layOut();
}

void WTWiFiListView::layOut()
{
    m_updateButton->setObjectName(u"updateButton"_s);
    m_nextBtn->setObjectName(u"btn_nextStep"_s);
    m_previous->setObjectName(u"previous"_s);
    m_updateButton->setTitle(localized(u"刷新"_s));
    m_nextBtn->setTitle(localized(u"下一步"_s));
    m_previous->setTitle(localized(u"上一步"_s));
    ButtonSchemes::applyBlue(*m_updateButton);
    ButtonSchemes::applyBack(*m_previous);

    auto *columns = new QHBoxLayout;
    columns->setSpacing(columnGap);
    columns->addWidget(m_panel, listStretch);
    columns->addWidget(m_form, formStretch);

    auto *frame = new ScreenFrame(this, WizardStep::Network);
    frame->setHeading(localized(u"选择无线网络"_s));
    frame->setInstruction(localized(u"请选择打印机要连接的网络，并输入它的密码。"_s));
    frame->content()->addWidget(m_printerNote);
    frame->content()->addSpacing(8);
    frame->content()->addLayout(columns, 1);
    frame->setBackButton(m_previous);
    frame->setMainButton(m_nextBtn);
    frame->addToBar(m_updateButton);
}

void WTWiFiListView::setPrinter(const WTPrinterPtr &printer)
{
    m_printer = printer;
    m_printerNote->setPrinter(printer);
}

void WTWiFiListView::awakeFromNib()
{
    WTView::awakeFromNib();
    m_form->awakeFromNib();
    connect(m_form, &NetworkForm::nameEdited, this, &WTWiFiListView::nameEdited);
    connect(m_form, &NetworkForm::passwordEdited, this, [this] {
        m_viewModel->choice().passwordTyped();
        logMaximumLength();
        updateBtnNextStepState();
    });
    connect(m_form, &NetworkForm::editingEnded, this,
            [this] { logInfo("ssid:%@", visibleText(m_form->entry().name)); });
    connect(m_wifiListView, &WTListView::rowChosen, this, &WTWiFiListView::tableView);
    connect(m_updateButton, &WTButton::clicked, this, &WTWiFiListView::updateWifiList);
    connect(m_nextBtn, &WTDefaultStyleBtn::clicked, this, &WTWiFiListView::next);
    connect(m_previous, &WTButton::clicked, this, &WTWiFiListView::back);
    connect(&WTApp::shared(), &WTApp::storedPasswordArrived, this, &WTWiFiListView::storedPasswordArrived);
}

void WTWiFiListView::viewDidApear()
{
    WTView::viewDidApear();
    m_form->hidePassword();
    updateBtnNextStepState();
}

// -- list -------------------------------------------------------------------------------------------------------------

void WTWiFiListView::ff_discoverPrinterAndUpdataWIFIList()
{
    logInfo("discover printer");
    stopLoading();
    if (selectRow() != 0) {
        m_wifiListView->showChosenRow(selectRow());
        logInfo("did selected row:%ld", selectRow());
        logInfo("did selected WIFI SSID:%@", selectedWiFi()->shownSSID());
        updateFieldsAndNext();
        return;
    }
    reloadTable();
    logInfo("currentSSID:%@", visibleText(currentSSID()));
    lookForNetworks(WTWiFiListViewModel::Occasion::Entry);
}

void WTWiFiListView::updateWifiList()
{
    logInfo("start fetch WiFi list btn");
    if (!m_enableRefresh) {
        logError("🈲 Disable Click");
        return;
    }
    lookForNetworks(WTWiFiListViewModel::Occasion::Refresh);
}

void WTWiFiListView::lookForNetworks(WTWiFiListViewModel::Occasion occasion)
{
    m_viewModel->beginSearch();
    if (!WTWiFiListViewModel::needsPermission()) {
        m_viewModel->readHostState(occasion);
        fetchWIFIList();
        return;
    }
    m_panel->showNote({});
    m_panel->showProgress(localized(u"正在等待系统许可…"_s));
    if (!m_viewModel->waitForPermission(occasion, [this](qint32 status) { changeLocation(status); }))
        sayThatNobodyAnswered();
}

void WTWiFiListView::sayThatNobodyAnswered()
{
    m_panel->showProgress({});
    m_panel->showNote(localized(u"系统尚未回答是否允许查找网络。请点击“刷新”再试一次，或直接输入名称。"_s));
    if (isVisible() && !m_form->hasKeyboard())
        m_updateButton->setFocus();
}

void WTWiFiListView::changeLocation(qint32 status)
{
    if (!ostraWindow() || ostraWindow()->contentView() != this) {
        logWarning("current view is not visible!");
        return;
    }
    const PermissionAnswer answer = permissionAnswer(status);
    switch (answer.step) {
    case PermissionAnswer::Step::Look:
        logInfo(answer.line);
        break;
    case PermissionAnswer::Step::AskPerson:
        logWarning(answer.line);
        stopLoading();
        showLocationAlert();
        return;
    case PermissionAnswer::Step::LeaveAndLook:
        logWarning(answer.line);
        backPreviousView();
        [[fallthrough]];
    case PermissionAnswer::Step::LookAnyway:
        logWarning("定位服务：未知状态 ⚠️ %d ⚠️", status);
        break;
    }
    fetchWIFIList();
}

void WTWiFiListView::fetchWIFIList()
{
    logInfo("🏷");
    startLoading();
    m_viewModel->fetchWIFIList([this] { listArrived(); });
}

void WTWiFiListView::listArrived()
{
    reloadTable();
    // What the person typed or chose while the search ran stays.
    if (!m_viewModel->choice().isTouched())
        updateTextfieldSSIDAndPWD();
    updateBtnNextStepState();
    stopLoading();
    if (m_viewModel->list_WIFI().empty())
        m_panel->showNote(localized(u"没有找到网络。请点击“刷新”再找一次，或直接输入名称。"_s));
}

void WTWiFiListView::startLoading()
{
    logInfo("start loading");
    m_enableRefresh = false;
    m_panel->showNote({});
    m_panel->showProgress(localized(u"正在查找无线网络…"_s));
    m_returnsKeyboard = m_updateButton->hasFocus();
    if (m_returnsKeyboard)
        m_wifiListView->setFocus();
    m_updateButton->setTitle({});
    m_updateButton->setAccessibleName(ButtonLook::spokenTitle(localized(u"刷新"_s)));
    m_updateButton->setEnabled(false);
}

void WTWiFiListView::stopLoading()
{
    logInfo("stop loading");
    m_panel->showProgress({});
    m_updateButton->setTitle(localized(u"刷新"_s));
    m_updateButton->setEnabled(true);
    if (std::exchange(m_returnsKeyboard, false) && m_wifiListView->hasFocus())
        m_updateButton->setFocus();
    m_enableRefresh = true;
}

void WTWiFiListView::reloadTable()
{
    const WTApp &app = WTApp::shared();
    m_rows->setNetworks(m_viewModel->list_WIFI(), app.selectedSSID.value_or(QString()), app.selectedAuthMode);
    m_rows->setChosenRow(selectRow());
    m_wifiListView->showChosenRow(selectRow());
}

void WTWiFiListView::tableView(int shouldSelectRow)
{
    m_returnsKeyboard = false;
    m_viewModel->choice().chooseRow(shouldSelectRow);
    m_rows->setChosenRow(shouldSelectRow);
    updateFieldsAndNext();
}

void WTWiFiListView::storedPasswordArrived(const QString &ssid)
{
    const bool fills = m_viewModel->takeStoredPassword(ssid);
    reloadTable();
    if (fills)
        updateFieldsAndNext();
}

// -- fields -----------------------------------------------------------------------------------------------------------

WTWiFiPtr WTWiFiListView::selectedWiFi()
{
    return m_viewModel->choice().selectedWiFi(m_viewModel->list_WIFI(), m_form->entry());
}

void WTWiFiListView::updateTextfieldSSIDAndPWD()
{
    const auto fields = m_viewModel->choice().filledFields(m_viewModel->list_WIFI(), m_form->entry());
    if (!fields)
        return;
    if (!fields->name.isEmpty())
        m_form->showName(fields->name);
    m_form->showPasswordText(fields->password);
}

void WTWiFiListView::updateBtnNextStepState()
{
    const NetworkEntry entry = m_form->entry();
    m_nextBtn->setDisable(!m_viewModel->canGoNext(entry));
    m_form->showErrors();
    m_form->showHint(m_viewModel->hint(entry));
}

void WTWiFiListView::updateFieldsAndNext()
{
    updateTextfieldSSIDAndPWD();
    updateBtnNextStepState();
}

void WTWiFiListView::nameEdited()
{
    logInfo("ssid:%@", visibleText(m_form->entry().name));
    m_viewModel->choice().nameTyped();
    logMaximumLength();
    updateBtnNextStepState();
}

void WTWiFiListView::logMaximumLength()
{
    logInfo("maxLength:%lu", static_cast<quint64>(WTWiFiListViewModel::maxLengthBy(selectedWiFi()->security)));
}

// -- ways out ---------------------------------------------------------------------------------------------------------

void WTWiFiListView::showLocationAlert()
{
    if (std::exchange(m_asksForLocation, true))
        return;
    const Alert alert{.messageText = localized(u"温馨提示："_s),
                      .informativeText = localized(u"请打开定位服务，步骤：系统设置->隐私与安全性->隐私->定位服务。"_s),
                      .buttons = {localized(u"前往设置"_s), localized(u"取消"_s)}};
    showAlert(window(), alert, [this](int response) {
        const auto leave = [this] {
            m_asksForLocation = false;
            back();
        };
        if (response == alertFirstButtonReturn)
            DesktopPanel::openPrivacySettings(window(), m_desktop, leave);
        else
            leave();
    });
}

void WTWiFiListView::showIsworkingAlert()
{
    EntryAlerts::showNote(window(), localized(u"打印端口被占用，无法配置打印机"_s));
}

void WTWiFiListView::back()
{
    m_viewModel->choice().reset();
    m_form->showName({});
    m_form->showPasswordText({});
    m_form->resetFrames();
    backPreviousView();
}

void WTWiFiListView::next()
{
    logInfo("next step");
    const NetworkEntry entry = m_form->entry();
    switch (entry.next(m_viewModel->isPrinterBusy(m_printer->printerType()))) {
    case NetworkEntry::Next::PrinterBusy:
        showIsworkingAlert();
        logWarning("printer is busy now");
        break;
    case NetworkEntry::Next::EmptyName:
        logError("ssid is empty");
        break;
    case NetworkEntry::Next::UnusableName:
        logWarning("network name refused");
        break;
    case NetworkEntry::Next::UnusablePassword:
        EntryAlerts::refusePassword(window(), entry.password);
        break;
    case NetworkEntry::Next::Go:
        logInfo("ssid👉🏻%@", visibleText(entry.name));
        m_installingView->setPrinter(m_printer);
        m_installingView->setWifi(entry.network());
        m_installingView->setProgress(0);
        pushView(m_installingView);
        break;
    }
}

// -- declared operations that others carry out ------------------------------------------------------------------------

QString WTWiFiListView::lastPwd() const
{
    return m_form->lastPwd();
}

void WTWiFiListView::controlDidBecomeFirstResponder(WTTextfield *field)
{
    m_form->controlDidBecomeFirstResponder(field);
}

void WTWiFiListView::controlTextDidChange(WTTextfield *field)
{
    m_form->controlTextDidChange(field);
}

void WTWiFiListView::controlTextDidEndEditing(WTTextfield *field)
{
    m_form->controlTextDidEndEditing(field);
}

void WTWiFiListView::showPassword()
{
    m_form->showPassword();
}

bool WTWiFiListView::isWorkingWithPrintType(const QString &printType) const
{
    return m_viewModel->isWorkingWithPrintType(printType);
}

bool WTWiFiListView::isScanAvaiable() const
{
    return WTWiFiListViewModel::isScanAvaiable();
}
