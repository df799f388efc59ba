#pragma once

#include "WTC_WLAN.h"

#include <memory>

/// One wireless network with a readable security label.
class WTWiFi : public WTC_WLAN
{
public:
    /// Always derived from `security`; absent from 14 on.
    std::optional<QString> authModeLabel() const;
    /// Stores a copy that no reader ever sees.
    void setAuthModeLabel(const std::optional<QString> &label);

private:
    std::optional<QString> m_authModeLabel;
};

using WTWiFiPtr = std::shared_ptr<WTWiFi>;
