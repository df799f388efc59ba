#include "WirelessDevice.h"

#include "AccessPointSecurity.h"
#include "GlibPointer.h"

#include <QStringDecoder>
#include <QStringList>
#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

namespace
{

/// dBm of a strength in per cent, the inverse of the usual percentage.
int rssiOfStrength(int strength)
{
    return strength / 2 - 100;
}

/// 1 for 2.4 GHz, 2 for 5 GHz, else 0. IEEE 802.11 channels: 2412 to 2484 MHz and 5160 to 5885 MHz.
int bandOfFrequency(guint32 megahertz)
{
    if (megahertz >= 2400 && megahertz < 2500)
        return 1;
    return megahertz >= 5000 && megahertz < 5925 ? 2 : 0;
}

AccessPointSecurity securityOf(NMAccessPoint *accessPoint)
{
    return accessPointSecurity(nm_access_point_get_flags(accessPoint), nm_access_point_get_wpa_flags(accessPoint),
                               nm_access_point_get_rsn_flags(accessPoint));
}

NMDeviceWifi *primaryDevice(NMClient *client)
{
    NMActiveConnection *primary = nm_client_get_primary_connection(client);
    if (!primary)
        return nullptr;
    const GPtrArray *devices = nm_active_connection_get_devices(primary);
    for (guint index = 0; devices && index < devices->len; ++index) {
        if (NM_IS_DEVICE_WIFI(devices->pdata[index]))
            return NM_DEVICE_WIFI(devices->pdata[index]);
    }
    return nullptr;
}

/// A device that NetworkManager leaves alone neither scans nor knows a password; a joined one has both to give.
int usefulness(NMDeviceWifi *device)
{
    if (!nm_device_get_managed(NM_DEVICE(device)))
        return 0;
    return nm_device_wifi_get_active_access_point(device) ? 2 : 1;
}

} // namespace

NMDeviceWifi *defaultWirelessDevice(NMClient *client)
{
    if (NMDeviceWifi *primary = primaryDevice(client))
        return primary;
    NMDeviceWifi *best = nullptr;
    const GPtrArray *devices = nm_client_get_devices(client);
    for (guint index = 0; devices && index < devices->len; ++index) {
        if (!NM_IS_DEVICE_WIFI(devices->pdata[index]))
            continue;
        NMDeviceWifi *device = NM_DEVICE_WIFI(devices->pdata[index]);
        if (!best || usefulness(device) > usefulness(best))
            best = device;
    }
    return best;
}

QString readableName(GBytes *ssid)
{
    if (!ssid)
        return {};
    gsize size = 0;
    const auto *bytes = static_cast<const guint8 *>(g_bytes_get_data(ssid, &size));
    // Hidden networks announce no name, or one of zero bytes only.
    if (std::all_of(bytes, bytes + size, [](guint8 byte) { return byte == 0; }))
        return {};
    // Piece by piece between zero bytes: libnm's text would end at the first one, and be the name of another network.
    QStringList pieces;
    for (const QByteArray &piece :
         QByteArray(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size)).split('\0')) {
        const GlibPointer<gchar> text(nm_utils_ssid_to_utf8(reinterpret_cast<const guint8 *>(piece.constData()),
                                                            static_cast<gsize>(piece.size())));
        // A byte order mark belongs to the name: without it the printer would look for another network.
        pieces += QStringDecoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom).decode(text.get());
    }
    return pieces.join(QChar::Null);
}

HostWiFiState wirelessState(NMClient *client, NMDeviceWifi *device)
{
    HostWiFiState state;
    if (!device)
        return state;
    state.interfaceName = QString::fromUtf8(nm_device_get_iface(NM_DEVICE(device)));
    state.poweredOn = nm_client_wireless_get_enabled(client) && nm_client_wireless_hardware_get_enabled(client);
    if (NMAccessPoint *accessPoint = nm_device_wifi_get_active_access_point(device)) {
        state.ssid = readableName(nm_access_point_get_ssid(accessPoint));
        state.rssi = rssiOfStrength(nm_access_point_get_strength(accessPoint));
        state.band = bandOfFrequency(nm_access_point_get_frequency(accessPoint));
        state.security = securityOf(accessPoint).platform;
    }
    return state;
}

std::vector<VisibleNetwork> visibleNetworks(NMDeviceWifi *device)
{
    struct Seen {
        qint64 quality = 0;
        bool only5GHz = true;
    };
    std::map<std::pair<QString, qint64>, Seen> best;
    const GPtrArray *accessPoints = nm_device_wifi_get_access_points(device);
    for (guint index = 0; accessPoints && index < accessPoints->len; ++index) {
        NMAccessPoint *accessPoint = NM_ACCESS_POINT(accessPoints->pdata[index]);
        const QString name = readableName(nm_access_point_get_ssid(accessPoint));
        if (name.isEmpty())
            continue;
        Seen &seen = best[{name, securityOf(accessPoint).library}];
        seen.quality = std::max(seen.quality, qint64{nm_access_point_get_strength(accessPoint)});
        seen.only5GHz = seen.only5GHz && nm_access_point_get_frequency(accessPoint) >= 5000;
    }
    std::vector<VisibleNetwork> networks;
    networks.reserve(best.size());
    for (const auto &[key, seen] : best)
        networks.push_back({key.first, key.second, seen.quality, seen.only5GHz});
    // The map is in the order of names already.
    std::stable_sort(networks.begin(), networks.end(),
                     [](const auto &one, const auto &two) { return one.quality > two.quality; });
    return networks;
}
