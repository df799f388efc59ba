#pragma once

#include <QString>
#include <optional>

/// One wireless network as the library reports it.
class WTC_WLAN
{
public:
    std::optional<QString> SSID;
    std::optional<QString> password;
    qint64 security = 0; ///< 0 other, 1 open, 2 WEP, 3 WPA personal, ... 13 OWE.
    qint64 quality = 0;  ///< Per cent.
};
