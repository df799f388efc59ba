#pragma once

#include <QtGlobal>

/// A network's security in the two numberings that the program uses.
struct AccessPointSecurity {
    qint64 library;  ///< The communication library's: 0 other, 1 open, 2 WEP, 3 WPA personal, ... 13 OWE.
    qint64 platform; ///< The host's: 0 open, 1 WEP, 2 WPA personal, ... 14 OWE; the largest number: unknown.

    bool operator==(const AccessPointSecurity &) const = default;
};

/// From an access point's flags as NetworkManager reports them (D-Bus properties Flags, WpaFlags and RsnFlags of
/// org.freedesktop.NetworkManager.AccessPoint). Where a pre-shared key and 802.1X are both offered, the key counts.
AccessPointSecurity accessPointSecurity(quint32 flags, quint32 wpaFlags, quint32 rsnFlags);
