#pragma once

#include "HostCapabilities.h"
#include "HostWiFiPort.h"

#include <QMap>
#include <QObject>
#include <QString>
#include <functional>
#include <optional>

class DesktopPort;

/// The process-wide application state: what the program knows of itself, of its host and of the host's own wireless
/// connection, and the interface language. One instance, made on first use. All on the main thread.
class WTApp : public QObject
{
    Q_OBJECT

public:
    using DeviceInfo = QMap<QString, QString>;

    /// The machine the program runs on. Once, before the first use of `shared()`; both ports outlive the program.
    static void usePorts(HostWiFiPort &hostWiFi, DesktopPort &desktop, const HostCapabilities &capabilities);
    static WTApp &shared();

    HostWiFiPort &hostWiFi() const;
    DesktopPort &desktop() const;
    const HostCapabilities &capabilities() const;

    // -- information --------------------------------------------------------------------------------------------
    /// The host report's "System Version", else the operating system's own name for it. Asked once.
    QString systemVersion();
    /// Nothing computes it: always absent.
    std::optional<QString> systemLanguage() const;
    /// The host report by key. A line counts when it has exactly one colon and something behind it; of two lines with
    /// the same key the first one counts. Asked once.
    const DeviceInfo &deviceInfo();
    std::optional<QString> appBundleName() const;
    std::optional<QString> appBundleID() const;
    std::optional<QString> appVersion() const;
    std::optional<QString> appBuildVersion() const;
    /// "version (build version)".
    QString appFullVersion() const;

    // -- language -----------------------------------------------------------------------------------------------
    /// The interface language's code. The first read decides it and attaches its texts; English ones when no language
    /// folder's name begins with the code. Absent when none could be attached; the next read then decides anew.
    std::optional<QString> appLanguage();
    /// Attaches the language's texts. When there are none, the next read of `appLanguage` decides anew. Absent and
    /// empty codes change nothing.
    void setAppLanguage(const std::optional<QString> &code);
    /// Which language it would be, without attaching any: the host's if the resource folder has an entry whose name
    /// begins with it, else "en".
    QString currentLocale() const;

    // -- the host's wireless connection -------------------------------------------------------------------------
    std::optional<HostWiFiState> currentInterface; ///< As of the last refresh; absent without an interface.
    bool isMacEthernetConnected = false;           ///< Reserved.
    bool isMacWiFiConnected = false;               ///< The radio is on and joined to a network with a name.
    bool powerOnWifi = false;                      ///< The radio.
    bool isWirelessAP = false;                     ///< Reserved.
    qint32 channelWifi = 0;                        ///< Band: 0 unknown, 1 the 2.4 GHz band, 2 the 5 GHz band.
    qint64 secureWifi = 0;                         ///< The current network's security, platform numbering.
    std::optional<QString> selectedSSID; ///< The network to configure, its name as it is sent; a refresh makes it the
                                         ///< current one. Log and screen show `visibleText` of it.
    qint64 selectedAuthMode = 0;         ///< Its security, platform numbering.
    std::optional<QString> selectedPassword; ///< Only ever the one that was fetched for the selected network; none for
                                             ///< an open one. Changed by a fetch and by a refresh.
    qint64 selectedRssi = 0;                 ///< The current network's quality in per cent.

    /// Reads all of the above from the host, except the reserved ones and the password, which is dropped unless it is
    /// that of the network that is selected now. Where the host names no default interface and has no interface at all,
    /// nothing changes.
    void checkPcNetState();

    using PasswordCallback = std::function<void(const QString &password)>;

    /// Asks for the selected network's stored password, unless the network is open, and puts what comes, empty after a
    /// failure, into `selectedPassword`. The password of another network is dropped at once, and an answer that comes
    /// when another network is selected is not kept.
    void fetchWIFIPWD();
    /// The stored password of the network that is selected when the host is asked; `ssid` only decides whether to ask:
    /// an absent one answers at once. The host may ask its user first. Empty after a failure.
    void pwdBySSID(const std::optional<QString> &ssid, PasswordCallback callBack);

    /// Signal quality in per cent from `rssi` in dBm.
    static qint64 _qualityStringWithRSSI(qint64 rssi);
    /// 0 open, 1 WEP, 2 WPA of any kind, 6 unknown, from the platform's numbering.
    static qint64 intNumberForSecurityMode(quint64 mode);

    // -- start and end ------------------------------------------------------------------------------------------
    /// Logs the host's and the program's version and the interface language.
    static void wt_systemLog();
    /// Logs the farewell and ends the event loop with exit status 0.
    static void wt_exitApp();

Q_SIGNALS:
    /// The host has answered what it has stored for the network `ssid`, and the callback of the request has run.
    void storedPasswordArrived(const QString &ssid);

private:
    WTApp() = default;

    /// Gets the network that the host was asked for, and its password, empty after a failure.
    using AccountPasswordCallback = std::function<void(const QString &account, const QString &password)>;

    /// Asks for the password of the network that is selected when the question is put, which is soon after.
    void askForPassword(AccountPasswordCallback callBack);
    void dropOthersPassword();
    void keepPassword(const std::optional<QString> &ssid, const QString &password);

    std::optional<QString> m_systemVersion;
    std::optional<DeviceInfo> m_deviceInfo;
    std::optional<QString> m_appLanguage;
    std::optional<QString> m_passwordSSID; ///< The network that the host's last stored password was for.
};
