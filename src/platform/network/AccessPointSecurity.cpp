#include "AccessPointSecurity.h"

#include <NetworkManager.h>
#include <limits>

namespace
{

constexpr AccessPointSecurity open{1, 0};
constexpr AccessPointSecurity wep{2, 1};
constexpr AccessPointSecurity other{0, std::numeric_limits<qint64>::max()};

AccessPointSecurity personal(bool wpa, bool rsn, bool sae)
{
    if (sae)
        return wpa || rsn ? AccessPointSecurity{9, 13} : AccessPointSecurity{11, 11};
    if (wpa)
        return rsn ? AccessPointSecurity{5, 3} : AccessPointSecurity{3, 2};
    return {7, 4};
}

AccessPointSecurity enterprise(bool wpa, bool rsn, bool suiteB)
{
    if (suiteB)
        return wpa || rsn ? AccessPointSecurity{10, 10} : AccessPointSecurity{12, 12};
    if (wpa)
        return rsn ? AccessPointSecurity{6, 8} : AccessPointSecurity{4, 7};
    return {8, 9};
}

} // namespace

AccessPointSecurity accessPointSecurity(quint32 flags, quint32 wpaFlags, quint32 rsnFlags)
{
    const auto wpaOffers = [wpaFlags](quint32 bit) { return (wpaFlags & bit) != 0; };
    const auto rsnOffers = [rsnFlags](quint32 bit) { return (rsnFlags & bit) != 0; };

    const bool wpaKey = wpaOffers(NM_802_11_AP_SEC_KEY_MGMT_PSK);
    const bool rsnKey = rsnOffers(NM_802_11_AP_SEC_KEY_MGMT_PSK);
    const bool sae = rsnOffers(NM_802_11_AP_SEC_KEY_MGMT_SAE);
    if (wpaKey || rsnKey || sae)
        return personal(wpaKey, rsnKey, sae);

    const bool wpaEnterprise = wpaOffers(NM_802_11_AP_SEC_KEY_MGMT_802_1X);
    const bool rsnEnterprise = rsnOffers(NM_802_11_AP_SEC_KEY_MGMT_802_1X);
    const bool suiteB = rsnOffers(NM_802_11_AP_SEC_KEY_MGMT_EAP_SUITE_B_192);
    if (wpaEnterprise || rsnEnterprise || suiteB)
        return enterprise(wpaEnterprise, rsnEnterprise, suiteB);

    if (rsnOffers(NM_802_11_AP_SEC_KEY_MGMT_OWE))
        return {13, 14};
    if (rsnOffers(NM_802_11_AP_SEC_KEY_MGMT_OWE_TM) || wpaOffers(NM_802_11_AP_SEC_KEY_MGMT_OWE_TM))
        return open;
    if (wpaFlags != NM_802_11_AP_SEC_NONE || rsnFlags != NM_802_11_AP_SEC_NONE)
        return other;
    return (flags & NM_802_11_AP_FLAGS_PRIVACY) != 0 ? wep : open;
}
