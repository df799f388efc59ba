#include "WTWiFiListViewModel.h"

#include "HostWiFiPort.h"
#include "Log.h"
#include "MainThread.h"
#include "NetworkHint.h"
#include "NetworkRules.h"
#include "OnMainThreadAfter.h"
#include "PrintQueueBusyCheck.h"
#include "ScannerLock.h"
#include "WTApp.h"
#include "WTLocationPermissionChecker.h"
#include "cutText.h"
#include "untrustedText.h"

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
    network->only5GHz = item.only5GHz;
    return network;
}

} // namespace

WTWiFiListViewModel::WTWiFiListViewModel(const NetworkPorts &ports, QObject *parent)
    : QObject(parent)
    , m_ports(ports)
{
}

// -- networks ---------------------------------------------------------------------------------------------------------

void WTWiFiListViewModel::beginSearch()
{
    ++m_search;
    m_choice.beginSearch();
}

void WTWiFiListViewModel::fetchWIFIList(Callback callBack)
{
    WTC_WLAN::getWiFiList([model = QPointer(this), fetch = ++m_fetch, callBack = std::move(callBack)](
                              const std::vector<WTC_WLAN> &items, const std::optional<WTError> &error) {
        onMainThread([model, fetch, callBack, items, error] {
            if (!model || model->m_fetch != fetch)
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
    const auto before = std::exchange(m_list, {});
    m_list.reserve(items.size());
    for (const WTC_WLAN &item : items)
        m_list.push_back(networkOf(item));
    putJoinedNetworkFirst();
    m_choice.followNetwork(before, m_list);
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
    const auto isJoined = [&](const WTWiFiPtr &network) { return network->isJoined(joined, app.selectedAuthMode); };
    const auto others = std::stable_partition(m_list.begin(), m_list.end(),
                                              [&](const WTWiFiPtr &network) { return network->SSID == joined; });
    // Another network may bear the joined one's name; it does not come before it and does not get its password.
    const auto namesakes = std::stable_partition(m_list.begin(), others, isJoined);
    for (auto network = m_list.begin(); network != namesakes; ++network)
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

bool WTWiFiListViewModel::waitForPermission(Occasion occasion, const StatusCallback &answered)
{
    bool hasAnswer = false, isOver = false;
    WTLocationPermissionChecker checker(m_ports.hostWiFi);
    checker.checkLocationPermission([this, occasion, answered, &hasAnswer](qint32 status) {
        hasAnswer = true;
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
    const auto end = onMainThreadAfter(m_ports.time, permissionWait, [&] {
        isOver = true;
        wait.quit();
    });
    const quint64 search = m_search;
    wait.exec();
    // The end of the program ends the wait, too, which does not mean that the host was silent.
    if (hasAnswer || !isOver || m_search != search)
        return true;
    logWarning("no answer within %d seconds whether networks may be looked for",
               static_cast<int>(permissionWait.count() / 1000));
    return false;
}

void WTWiFiListViewModel::readHostState(Occasion occasion)
{
    WTApp &app = WTApp::shared();
    app.checkPcNetState();
    if (occasion == Occasion::Entry) {
        app.fetchWIFIPWD();
        return;
    }
    logInfo("Check SSID:%@", visibleText(app.selectedSSID));
    logInfo("Current SSID:%@", visibleText(m_currentSSID));
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

bool WTWiFiListViewModel::isPrinterBusy(const QString &printType) const
{
    return isWorkingWithPrintType(printType) || isScanAvaiable();
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

const WTWiFi *WTWiFiListViewModel::listedNetwork(const QString &name) const
{
    const auto row = static_cast<std::size_t>(m_choice.row());
    if (!m_choice.editedSSID() && row < m_list.size() && m_list[row]->SSID == name)
        return m_list[row].get();
    const auto listed =
        std::find_if(m_list.begin(), m_list.end(), [&](const WTWiFiPtr &network) { return network->SSID == name; });
    return listed == m_list.end() ? nullptr : listed->get();
}

bool WTWiFiListViewModel::canGoNext(const NetworkEntry &fields) const
{
    if (!NetworkRules::isNameUsable(fields.name))
        return false;
    const WTWiFi *listed = listedNetwork(fields.name);
    return isLegalPwd(fields.password, listed ? listed->security : 0);
}

QString WTWiFiListViewModel::hint(const NetworkEntry &fields) const
{
    return hintText(networkHint(fields, listedNetwork(fields.name)));
}
