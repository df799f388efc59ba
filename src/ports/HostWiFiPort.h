#pragma once

#include <QString>
#include <optional>

/// What the computer's own wireless interface says of itself at one moment.
struct HostWiFiState {
    QString interfaceName;       ///< Empty: the computer has no wireless interface.
    bool poweredOn = false;      ///< The radio.
    int band = 0;                ///< 0 unknown, 1 the 2.4 GHz band, 2 the 5 GHz band.
    std::optional<QString> ssid; ///< The network it is joined to.
    int rssi = 0;                ///< dBm; 0 when there is no network.
    qint64 security = 0;         ///< Platform numbering: 0 open, 1 WEP, 2 to 5 WPA personal, ...
};

/// The computer's own Wi-Fi.
class HostWiFiPort
{
public:
    virtual ~HostWiFiPort() = default;

    /// The state as last heard from the host; never waits.
    virtual HostWiFiState state() = 0;
};
