#include "WTWiFiListView.h"

#include "ButtonLook.h"
#include "ButtonSchemes.h"
#include "DesktopPort.h"
#include "KSPasswordField.h"
#include "LiveLabel.h"
#include "Localized.h"
#include "Log.h"
#include "NetworkRows.h"
#include "NetworkRules.h"
#include "OnMainThreadAfter.h"
#include "PrintQueueBusyCheck.h"
#include "ScannerLock.h"
#include "WTApp.h"
#include "WTButton.h"
#include "WTCommand.h"
#include "WTDefaultStyleBtn.h"
#include "WTInstallingView.h"
#include "WTListView.h"
#include "WTLocationPermissionChecker.h"
#include "WTManager.h"
#include "WTTextfield.h"
#include "WTWiFiListViewModel.h"
#include "WTWindow.h"
#include "refuseLongPassword.h"
#include "showAlert.h"

#include <QEventLoop>
#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr TimePort::Duration permissionWait = std::chrono::seconds(5);

} // namespace

void WTWiFiListView::awakeFromNib()
{
    WTView::awakeFromNib();
    for (WTTextfield *field : {m_ssidTextField, static_cast<WTTextfield *>(m_passwordTextField)}) {
        connect(field, &WTTextfield::controlDidBecomeFirstResponder, this,
                &WTWiFiListView::controlDidBecomeFirstResponder);
        connect(field, &WTTextfield::controlTextDidChange, this, &WTWiFiListView::controlTextDidChange);
        connect(field, &WTTextfield::controlTextDidEndEditing, this, &WTWiFiListView::controlTextDidEndEditing);
    }
    connect(m_wifiListView, &WTListView::rowChosen, this, &WTWiFiListView::tableView);
    connect(m_updateButton, &WTButton::clicked, this, &WTWiFiListView::updateWifiList);
    connect(m_passwordTextField, &KSPasswordField::showHidePressed, m_showPwdBtn, &WTButton::click);
    connect(m_passwordTextField, &KSPasswordField::capsLockChanged, this, &WTWiFiListView::showPasswordError);
    connect(m_showPwdBtn, &WTButton::clicked, this, &WTWiFiListView::showPassword);
    connect(m_nextBtn, &WTDefaultStyleBtn::clicked, this, &WTWiFiListView::next);
    connect(m_previous, &WTButton::clicked, this, &WTWiFiListView::back);
    connect(&WTApp::shared(), &WTApp::storedPasswordArrived, this, &WTWiFiListView::storedPasswordArrived);
}

void WTWiFiListView::viewDidApear()
{
    WTView::viewDidApear();
    ButtonSchemes::showChecked(*m_showPwdBtn, false);
    m_passwordTextField->setShowsText(false);
    updateBtnNextStepState();
}

WTWiFiListViewModel *WTWiFiListView::viewModel()
{
    if (!m_viewModel) {
        m_viewModel = new WTWiFiListViewModel(this);
        m_viewModel->view = this;
    }
    return m_viewModel;
}

WTWiFiPtr WTWiFiListView::selectedWiFi()
{
    if (!m_selectedWiFi)
        m_selectedWiFi = std::make_shared<WTWiFi>();
    const auto &list = viewModel()->list_WIFI();
    if (list.empty() || m_editedSSID) {
        m_selectedWiFi->SSID = m_ssidTextField->text();
        m_selectedWiFi->password = m_passwordTextField->text();
        m_selectedWiFi->security = 0;
    } else if (std::size_t(m_selectRow) < list.size()) {
        *m_selectedWiFi = *list[std::size_t(m_selectRow)];
    }
    return m_selectedWiFi;
}

// -- list -------------------------------------------------------------------------------------------------------------

void WTWiFiListView::ff_discoverPrinterAndUpdataWIFIList()
{
    logInfo("discover printer");
    stopLoading();
    if (m_selectRow != 0 && selectedWiFi()) {
        m_wifiListView->showChosenRow(m_selectRow);
        logInfo("did selected row:%ld", m_selectRow);
        logInfo("did selected WIFI SSID:%@", selectedWiFi()->SSID);
        updateTextfieldSSIDAndPWD();
        updateBtnNextStepState();
        return;
    }
    m_selectRow = 0;
    m_wifiListView->showChosenRow(0);
    reloadTable();
    logInfo("currentSSID:%@", m_currentSSID);
    if (WTApp::shared().capabilities().scanNeedsPermission) {
        waitForPermission(false);
        return;
    }
    WTApp::shared().checkPcNetState();
    WTApp::shared().fetchWIFIPWD();
    fetchWIFIList();
}

void WTWiFiListView::updateWifiList()
{
    logInfo("start fetch WiFi list btn");
    if (!m_enableRefresh) {
        logError("🈲 Disable Click");
        return;
    }
    m_selectRow = 0;
    WTApp &app = WTApp::shared();
    if (app.capabilities().scanNeedsPermission) {
        waitForPermission(true);
        return;
    }
    app.checkPcNetState();
    logInfo("Check SSID:%@", app.selectedSSID);
    logInfo("Current SSID:%@", m_currentSSID);
    logInfo("WiFiConnected:%@", app.isMacWiFiConnected ? "✅" : "❌");
    if (app.isMacWiFiConnected && app.selectedSSID != m_currentSSID) {
        logInfo("🏷 need refetch pwd");
        app.fetchWIFIPWD();
    }
    fetchWIFIList();
}

void WTWiFiListView::waitForPermission(bool refreshesHostState)
{
    WTLocationPermissionChecker checker(WTApp::shared().hostWiFi());
    checker.checkLocationPermission([this, refreshesHostState](qint32 status) {
        if (status == static_cast<qint32>(ScanPermission::Allowed)) {
            WTApp &app = WTApp::shared();
            if (refreshesHostState)
                app.checkPcNetState();
            app.fetchWIFIPWD();
            m_currentSSID = app.selectedSSID;
        }
        changeLocation(status);
    });
    // Screens live as long as the window, and the window as long as the program's own event loop around this one.
    QEventLoop wait;
    const auto end = onMainThreadAfter(WTManager::shared().time(), permissionWait, [&wait] { wait.quit(); });
    wait.exec();
}

void WTWiFiListView::changeLocation(qint32 status)
{
    if (!ostraWindow() || ostraWindow()->contentView() != this) {
        logWarning("current view is not visible!");
        return;
    }
    switch (status) {
    case static_cast<qint32>(ScanPermission::NotDetermined):
        logWarning("定位服务：用户尚未做出选择（触发时机：首次请求定位权限时）");
        stopLoading();
        showLocationAlert();
        return;
    case static_cast<qint32>(ScanPermission::Denied):
        logWarning("定位服务：用户明确拒绝或系统定位服务关闭（触发时机：用户明确拒绝或系统定位服务关闭）");
        stopLoading();
        showLocationAlert();
        return;
    case static_cast<qint32>(ScanPermission::Allowed):
        logInfo("定位服务：获得持续定位权限（触发时机：用户同意“允许”定位服务）");
        fetchWIFIList();
        return;
    case static_cast<qint32>(ScanPermission::Restricted):
        logWarning("定位服务：设备限制导致无法获取定位（触发时机：家长控制/设备策略限制）");
        backPreviousView();
        break;
    default:
        break;
    }
    // A restricted status goes on as an unknown one, on a screen that was left.
    logWarning("定位服务：未知状态 ⚠️ %d ⚠️", status);
    fetchWIFIList();
}

void WTWiFiListView::fetchWIFIList()
{
    logInfo("🏷");
    m_editedSSID = false;
    startLoading();
    viewModel()->fetchWIFIList([this] {
        reloadTable();
        updateTextfieldSSIDAndPWD();
        updateBtnNextStepState();
        stopLoading();
    });
}

void WTWiFiListView::startLoading()
{
    logInfo("start loading");
    m_enableRefresh = false;
    m_activeView->show();
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
    m_activeView->hide();
    m_updateButton->setTitle(localized(u"刷新"_s));
    m_updateButton->setEnabled(true);
    if (std::exchange(m_returnsKeyboard, false) && m_wifiListView->hasFocus())
        m_updateButton->setFocus();
    m_enableRefresh = true;
}

void WTWiFiListView::reloadTable()
{
    m_rows->setNetworks(viewModel()->list_WIFI(), WTApp::shared().selectedSSID.value_or(QString()));
    m_rows->setChosenRow(m_selectRow);
    m_wifiListView->showChosenRow(m_selectRow);
}

void WTWiFiListView::tableView(int shouldSelectRow)
{
    m_editedSSID = false;
    m_returnsKeyboard = false;
    m_selectRow = shouldSelectRow;
    m_rows->setChosenRow(m_selectRow);
    updateTextfieldSSIDAndPWD();
    updateBtnNextStepState();
}

void WTWiFiListView::storedPasswordArrived(const QString &ssid)
{
    const auto &list = viewModel()->list_WIFI();
    const WTWiFiPtr chosen = std::size_t(m_selectRow) < list.size() ? list[std::size_t(m_selectRow)] : nullptr;
    viewModel()->putJoinedNetworkFirst();
    // A chosen row stays with its network; the first row stays the first.
    if (m_selectRow != 0 && chosen)
        m_selectRow = int(std::find(list.begin(), list.end(), chosen) - list.begin());
    reloadTable();
    const bool isFirst = !list.empty() && list.front()->SSID == ssid && WTApp::shared().selectedSSID == ssid;
    if (!isFirst || m_selectRow != 0 || m_editedSSID || m_passwordTyped)
        return;
    updateTextfieldSSIDAndPWD();
    updateBtnNextStepState();
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
        m_asksForLocation = false;
        if (response == alertFirstButtonReturn)
            WTCommand::executeShellScript(WTApp::shared().desktop().privacySettingsCommandLine());
        back();
    });
}

bool WTWiFiListView::isWorkingWithPrintType(const QString &printType)
{
    return ::isWorkingWithPrintType(printType, BusyCheckVariant::List);
}

bool WTWiFiListView::isScanAvaiable()
{
    return ScannerLock::isHeld(ScannerLock::configuredPaths());
}

void WTWiFiListView::showIsworkingAlert()
{
    showAlert(window(), {.messageText = localized(u"温馨提示："_s),
                         .informativeText = localized(u"打印端口被占用，无法配置打印机"_s),
                         .buttons = {localized(u"确定"_s)}});
}

void WTWiFiListView::back()
{
    m_selectRow = 0;
    m_selectedWiFi.reset();
    m_ssidTextField->showText({});
    m_passwordTextField->showText({});
    resetFieldFrames();
    backPreviousView();
}

void WTWiFiListView::next()
{
    logInfo("next step");
    if (isWorkingWithPrintType(m_printer->printerType()) || isScanAvaiable()) {
        showIsworkingAlert();
        logWarning("printer is busy now");
        return;
    }
    const QString name = m_ssidTextField->text();
    if (name.isEmpty()) {
        logError("ssid is empty");
        return;
    }
    const QString password =
        viewModel()->subString(m_passwordTextField->text(), viewModel()->maxLengthBy(selectedWiFi()->security));
    if (NetworkRules::isPasswordTooLong(password)) {
        refuseLongPassword(window());
        return;
    }
    auto wifi = std::make_shared<WTWiFi>();
    wifi->SSID = name;
    logInfo("ssid👉🏻%@", wifi->SSID);
    wifi->password = password;
    m_installingView->setPrinter(m_printer);
    m_installingView->setWifi(wifi);
    m_installingView->setProgress(0);
    pushView(m_installingView);
}
