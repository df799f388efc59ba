#include "WTWiFiListViewModel.h"

#include "Log.h"
#include "MainThread.h"
#include "NetworkRules.h"
#include "WTApp.h"
#include "cutText.h"

#include <QPointer>
#include <algorithm>
#include <utility>

namespace
{

WTWiFiPtr networkOf(const WTC_WLAN &item)
{
    auto network = std::make_shared<WTWiFi>();
    network->SSID = item.SSID;
    network->security = item.security;
    network->quality = item.quality;
    return network;
}

} // namespace

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

bool WTWiFiListViewModel::canGoNext(const QString &name, const QString &password) const
{
    if (!NetworkRules::isNameUsable(name))
        return false;
    const auto listed =
        std::find_if(m_list.begin(), m_list.end(), [&](const WTWiFiPtr &network) { return network->SSID == name; });
    return isLegalPwd(password, listed == m_list.end() ? 0 : (*listed)->security);
}
