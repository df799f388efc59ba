#pragma once

#include "WTError.h"
#include "untrustedText.h"

#include <QString>
#include <functional>
#include <optional>
#include <vector>

class HostWiFiPort;

/// One wireless network as the library reports it.
class WTC_WLAN
{
public:
    /// Called once, on the library's own thread, with the networks or the reason why there are none.
    using ListCallback = std::function<void(const std::vector<WTC_WLAN> &, const std::optional<WTError> &)>;

    /// The host whose networks are listed. Once, before the first `getWiFiList`; it outlives the library.
    static void usePort(HostWiFiPort &hostWiFi);

    /// The networks that the host sees now, in the host's order. Returns at once; the scan may take seconds.
    static void getWiFiList(ListCallback callBack);

    /// The network's name as it is sent. Hidden characters and all: for log and screen there is `shownSSID`.
    std::optional<QString> SSID;
    std::optional<QString> shownSSID() const { return visibleText(SSID); }
    std::optional<QString> password;
    qint64 security = 0;   ///< 0 other, 1 open, 2 WEP, 3 WPA personal, ... 13 OWE.
    qint64 quality = 0;    ///< Per cent.
    bool only5GHz = false; ///< All its access points in sight are in the 5 GHz band or above (6 GHz).
};
