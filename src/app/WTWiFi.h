#pragma once

#include "WTC_WLAN.h"

#include <memory>

/// One wireless network with a readable security label.
class WTWiFi : public WTC_WLAN
{
public:
    /// Whether this is the network that the computer is joined to, by its name and its security in the platform's
    /// numbering. A name alone proves nothing: anybody can open a network without a password under the name of one that
    /// has one.
    bool isJoined(const QString &joinedName, qint64 joinedSecurity) const;

    /// Derived from `security` each time; absent for 14 and above.
    std::optional<QString> authModeLabel() const;
    /// Stores a copy that no reader ever sees.
    void setAuthModeLabel(const std::optional<QString> &label);

private:
    std::optional<QString> m_authModeLabel;
};

using WTWiFiPtr = std::shared_ptr<WTWiFi>;
