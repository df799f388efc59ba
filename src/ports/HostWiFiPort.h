#pragma once

#include "WTError.h"

#include <QString>
#include <functional>
#include <optional>
#include <vector>

/// What the computer's own wireless interface says of itself at one moment.
struct HostWiFiState {
    QString interfaceName;       ///< Empty: the computer has no wireless interface.
    bool poweredOn = false;      ///< The radio.
    int band = 0;                ///< 0 unknown, 1 the 2.4 GHz band, 2 the 5 GHz band.
    std::optional<QString> ssid; ///< The network it is joined to.
    int rssi = 0;                ///< Signal strength in dBm; 0 when it is joined to none.
    qint64 security = 0;         ///< Platform numbering: 0 open, 1 WEP, 2 to 5 WPA personal, ...

    bool operator==(const HostWiFiState &) const = default;
};

/// One network that the computer sees.
struct VisibleNetwork {
    QString ssid;          ///< As text; a name whose bytes are no UTF-8 is decoded as best it can be.
    qint64 security = 0;   ///< The communication library's numbering: 0 other, 1 open, 2 WEP, ... 13 OWE.
    qint64 quality = 0;    ///< Per cent.
    bool only5GHz = false; ///< All its access points in sight are in the 5 GHz band or above (6 GHz).

    bool operator==(const VisibleNetwork &) const = default;
};

/// Whether the program may look for networks. The numbers stand in the log.
enum class ScanPermission : int { NotDetermined = 0, Restricted = 1, Denied = 2, Allowed = 3, Unknown = 4 };

/// Why a stored password could not be had. 0 is success.
enum class SecretStatus : int {
    Success = 0,
    PermissionDenied = -25293,
    PromptCancelled = -128,
    NotStored = -25300,
    Unavailable = -25291, ///< No service to ask, or it failed.
};

/// The computer's own Wi-Fi. All operations return at once and may be called on any thread; the callbacks come on the
/// port's own thread.
class HostWiFiPort
{
public:
    using NetworksCallback = std::function<void(const WTResult<std::vector<VisibleNetwork>> &)>;
    using SecretCallback = std::function<void(SecretStatus, const QString &password)>;

    virtual ~HostWiFiPort() = default;

    /// The state as last heard from the host.
    virtual HostWiFiState state() = 0;

    /// Looks around and reports the visible networks, strongest first, then by name: one for each pair of name and
    /// security, without the hidden ones. Where the host has not looked again within 10 s, reports what it knew before.
    virtual void scan(NetworksCallback done) = 0;

    /// The stored password of the network of this name. The host may ask its user first, which can take minutes.
    virtual void storedPassword(const QString &ssid, SecretCallback done) = 0;

    virtual ScanPermission scanPermission() = 0;

    /// Calls `changed` once, as soon as the permission is known, and then at every change of it. There is one watcher:
    /// a new function takes the place of the old one, an empty one ends the watch.
    virtual void watchScanPermission(std::function<void()> changed) = 0;
};
