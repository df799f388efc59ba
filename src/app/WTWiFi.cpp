#include "WTWiFi.h"

#include "Localized.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace
{

/// The labels' keys; the index is the library's security number.
constexpr std::array labelKeys{
    "Other"_L1,
    "Open"_L1,
    "WEP"_L1,
    "WPA-Personal"_L1,
    "WPA-Enterprise"_L1,
    "WPA/WPA2-Personal"_L1,
    "WPA/WPA2-Enterprise"_L1,
    "WPA2-Personal"_L1,
    "WPA2-Enterprise"_L1,
    "WPA2/WPA3-Personal"_L1,
    "WPA2/WPA3-Enterprise"_L1,
    "WPA3-Personal"_L1,
    "WPA3-Enterprise"_L1,
    "OWE"_L1,
};

/// Open, and open with encryption (OWE), in the library's numbering and in the platform's.
bool needsNoPassword(qint64 librarySecurity)
{
    return librarySecurity == 1 || librarySecurity == 13;
}

bool joinedWithoutPassword(qint64 platformSecurity)
{
    return platformSecurity == 0 || platformSecurity == 14;
}

} // namespace

bool WTWiFi::isJoined(const QString &joinedName, qint64 joinedSecurity) const
{
    return !joinedName.isEmpty() && SSID == joinedName &&
           needsNoPassword(security) == joinedWithoutPassword(joinedSecurity);
}

std::optional<QString> WTWiFi::authModeLabel() const
{
    if (security < 0 || security >= qint64{labelKeys.size()})
        return std::nullopt;
    return localized(labelKeys[static_cast<std::size_t>(security)]);
}

void WTWiFi::setAuthModeLabel(const std::optional<QString> &label)
{
    m_authModeLabel = label;
}
