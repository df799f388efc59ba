#include "WTWiFiListViewModel.h"

#include "HostWiFiPort.h"
#include "Log.h"
#include "MainThread.h"
#include "NetworkRules.h"
#include "OnMainThreadAfter.h"
#include "PrintQueueBusyCheck.h"
#include "ScannerLock.h"
#include "WTApp.h"
#include "WTLocationPermissionChecker.h"
#include "cutText.h"

#include <QEventLoop>
#include <QPointer>
#include <algorithm>
#include <utility>

namespace
{

constexpr TimePort::Duration permissionWait = std::chrono::seconds(5);

WTWiFiPtr networkOf(const WTC_WLAN &item)
{
    auto network = std::make_shared<WTWiFi>();
    network->SSID = item.SSID;
    network->security = item.security;
    network->quality = item.quality;
    return network;
}

} // namespace

WTWiFiListViewModel::WTWiFiListViewModel(const NetworkPorts &ports, QObject *parent)
    : QObject(parent)
    , m_ports(ports)
{
}

// -- networks ---------------------------------------------------------------------------------------------------------

void WTWiFiListViewModel::fetchWIFIList(Callback callBack)
{
    WTC_WLAN::getWiFiList([model = QPointer(this), callBack = std::move(callBack)](
                              const std::vector<WTC_WLAN> &items, const std::optional<WTError> &error) {
        onMainThread([model, callBack, items, error] {
            if (!model)
                return;
            if (!error) {
                model->reloadDataSource(items, callBack);
                return;
            }
            callBack();
            logInfo("fetchWIFIList errror:%@", error->message);
        });
    });
}

void WTWiFiListViewModel::reloadDataSource(const std::vector<WTC_WLAN> &items, const Callback &callBack)
{
    m_list.clear();
    m_list.reserve(items.size());
    for (const WTC_WLAN &item : items)
        m_list.push_back(networkOf(item));
    putJoinedNetworkFirst();
    callBack();
}

void WTWiFiListViewModel::putJoinedNetworkFirst()
{
    const WTApp &app = WTApp::shared();
    const QString joined = app.selectedSSID.value_or(QString());
    if (joined.isEmpty()) {
        logInfo("selected ssid is empty");
        return;
    }
    const auto others = std::stable_partition(m_list.begin(), m_list.end(),
                                              [&](const WTWiFiPtr &network) { return network->SSID == joined; });
    for (auto network = m_list.begin(); network != others; ++network)
        (*network)->password = app.selectedPassword;
}

bool WTWiFiListViewModel::takeStoredPassword(const QString &ssid)
{
    const auto before = m_list;
    putJoinedNetworkFirst();
    m_choice.followNetwork(before, m_list);
    const bool isFirst = !m_list.empty() && m_list.front()->SSID == ssid && WTApp::shared().selectedSSID == ssid;
    return isFirst && m_choice.takesLatePassword();
}

// -- the computer -----------------------------------------------------------------------------------------------------

bool WTWiFiListViewModel::needsPermission()
{
    return WTApp::shared().capabilities().scanNeedsPermission;
}

void WTWiFiListViewModel::waitForPermission(Occasion occasion, const StatusCallback &answered)
{
    WTLocationPermissionChecker checker(m_ports.hostWiFi);
    checker.checkLocationPermission([this, occasion, answered](qint32 status) {
        if (status == static_cast<qint32>(ScanPermission::Allowed)) {
            WTApp &app = WTApp::shared();
            if (occasion == Occasion::Refresh)
                app.checkPcNetState();
            app.fetchWIFIPWD();
            m_currentSSID = app.selectedSSID;
        }
        answered(status);
    });
    // The program's own event loop is below this one, and ends after it; until then the window and its screens live.
    QEventLoop wait;
    const auto end = onMainThreadAfter(m_ports.time, permissionWait, [&wait] { wait.quit(); });
    wait.exec();
}

void WTWiFiListViewModel::readHostState(Occasion occasion)
{
    WTApp &app = WTApp::shared();
    app.checkPcNetState();
    if (occasion == Occasion::Entry) {
        app.fetchWIFIPWD();
        return;
    }
    logInfo("Check SSID:%@", app.selectedSSID);
    logInfo("Current SSID:%@", m_currentSSID);
    logInfo("WiFiConnected:%@", app.isMacWiFiConnected ? "✅" : "❌");
    if (mustFetchPassword(app.isMacWiFiConnected, app.selectedSSID, m_currentSSID)) {
        logInfo("🏷 need refetch pwd");
        app.fetchWIFIPWD();
    }
}

bool WTWiFiListViewModel::mustFetchPassword(bool isConnected, const std::optional<QString> &joined,
                                            const std::optional<QString> &current)
{
    return isConnected && joined != current;
}

bool WTWiFiListViewModel::isWorkingWithPrintType(const QString &printType) const
{
    return ::isWorkingWithPrintType(m_ports.spooler, printType, BusyCheckVariant::List);
}

bool WTWiFiListViewModel::isScanAvaiable()
{
    return ScannerLock::isHeld(ScannerLock::configuredPaths());
}

// -- what may be typed ------------------------------------------------------------------------------------------------

bool WTWiFiListViewModel::isVailePassword(const QString &password)
{
    return NetworkRules::isVailePassword(password);
}

qsizetype WTWiFiListViewModel::maxLengthBy(qint64)
{
    return NetworkRules::maximumPasswordLength;
}

QString WTWiFiListViewModel::subString(const QString &text, qsizetype index)
{
    return cutText(text, index);
}

bool WTWiFiListViewModel::isLegalPwd(const QString &password, qint64 authMode)
{
    const bool isLegal = password.size() <= maxLengthBy(authMode);
    logInfo("Output 👉🏻%@", isLegal ? "✅" : "❌");
    return isLegal;
}

bool WTWiFiListViewModel::canGoNext(const NetworkEntry &fields) const
{
    if (!NetworkRules::isNameUsable(fields.name))
        return false;
    const auto listed = std::find_if(m_list.begin(), m_list.end(),
                                     [&](const WTWiFiPtr &network) { return network->SSID == fields.name; });
    return isLegalPwd(fields.password, listed == m_list.end() ? 0 : (*listed)->security);
}
