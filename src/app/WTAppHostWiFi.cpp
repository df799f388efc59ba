#include "HostWiFiPort.h"
#include "Log.h"
#include "MainThread.h"
#include "WTApp.h"
#include "untrustedText.h"

namespace
{

constexpr qint64 openNetwork = 0; ///< In the platform's numbering.

const char *mark(bool yes)
{
    return yes ? "✅" : "❌";
}

void logSecretFailure(SecretStatus status)
{
    switch (status) {
    case SecretStatus::Success:
        break;
    case SecretStatus::PermissionDenied:
        logInfo("鉴权失败，请检查密码");
        break;
    case SecretStatus::PromptCancelled:
        logInfo("用户取消了鉴权");
        break;
    case SecretStatus::NotStored:
    case SecretStatus::Unavailable:
        logInfo("获取密码失败，错误代码: %d", static_cast<int>(status));
        break;
    }
}

} // namespace

void WTApp::checkPcNetState()
{
    const HostWiFiState state = hostWiFi().state();
    const bool hasInterface = !state.interfaceName.isEmpty();
    if (!capabilities().hasDefaultInterface && !hasInterface)
        return;

    currentInterface = hasInterface ? std::optional(state) : std::nullopt;
    powerOnWifi = state.poweredOn;
    logInfo("powerOnWifi:%@", mark(powerOnWifi));
    channelWifi = state.band;
    selectedSSID = state.ssid;
    logInfo("selectedSSID:%@", visibleText(selectedSSID));
    selectedRssi = _qualityStringWithRSSI(state.rssi);
    secureWifi = state.security;
    selectedAuthMode = state.security;
    dropOthersPassword();
    isMacWiFiConnected = powerOnWifi && selectedSSID && !selectedSSID->isEmpty();
    logInfo("isMacWiFiConnected:%@", mark(isMacWiFiConnected));
}

qint64 WTApp::_qualityStringWithRSSI(qint64 rssi)
{
    if (rssi < -99)
        return 0;
    if (rssi > -51)
        return 100;
    return 2 * rssi + 200;
}

qint64 WTApp::intNumberForSecurityMode(quint64 mode)
{
    constexpr qint64 unknown = 6;
    constexpr std::array<qint64, 14> codes{0, 1, 2, 2, 2, 2, 1, 2, 2, 2, 2, 2, 2, 2};
    return mode < codes.size() ? codes[mode] : unknown;
}

void WTApp::fetchWIFIPWD()
{
    // The host may ask its user first; until then nobody is shown another network's password.
    dropOthersPassword();
    if (selectedAuthMode == openNetwork)
        return;
    logInfo("🏷");
    if (selectedSSID)
        askForPassword(
            [](const QString &account, const QString &password) { shared().keepPassword(account, password); });
    else
        keepPassword(std::nullopt, {});
}

void WTApp::dropOthersPassword()
{
    if (selectedAuthMode == openNetwork || m_passwordSSID != selectedSSID)
        selectedPassword.reset();
}

void WTApp::keepPassword(const std::optional<QString> &ssid, const QString &password)
{
    // While the host asked its user, another network can have been selected.
    if (selectedSSID != ssid || selectedAuthMode == openNetwork)
        return;
    selectedPassword = password;
    m_passwordSSID = ssid;
}

void WTApp::pwdBySSID(const std::optional<QString> &ssid, PasswordCallback callBack)
{
    if (!ssid) {
        callBack({});
        return;
    }
    askForPassword([callBack = std::move(callBack)](const QString &, const QString &password) { callBack(password); });
}

void WTApp::askForPassword(AccountPasswordCallback callBack)
{
    onMainThread([callBack = std::move(callBack)] {
        const QString account = shared().selectedSSID.value_or(QString());
        shared().hostWiFi().storedPassword(account, [callBack, account](SecretStatus status, const QString &password) {
            onMainThread([callBack, account, status, password] {
                logSecretFailure(status);
                if (status == SecretStatus::Success)
                    shared().keepPassword(account, password);
                callBack(account, status == SecretStatus::Success ? password : QString());
                Q_EMIT shared().storedPasswordArrived(account);
            });
        });
    });
}
