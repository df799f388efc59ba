#include "NetworkSecret.h"

#include "GlibPointer.h"
#include "WirelessDevice.h"

#include <iterator>
#include <memory>
#include <utility>

namespace
{

/// NetworkManager may ask a person first, who may be away from the computer; D-Bus would give up after 25 s.
constexpr int secretLimitMilliseconds = 30 * 60 * 1000;

struct SecretRequest {
    HostWiFiPort::SecretCallback done;
    guint wepKeyIndex = 0;
};

bool isProfileOf(NMRemoteConnection *profile, const QString &ssid)
{
    NMSettingWireless *wireless = nm_connection_get_setting_wireless(NM_CONNECTION(profile));
    return wireless && readableName(nm_setting_wireless_get_ssid(wireless)) == ssid;
}

NMRemoteConnection *profileFor(NMClient *client, NMDeviceWifi *device, const QString &ssid)
{
    NMActiveConnection *active = device ? nm_device_get_active_connection(NM_DEVICE(device)) : nullptr;
    NMRemoteConnection *inUse = active ? nm_active_connection_get_connection(active) : nullptr;
    if (inUse && isProfileOf(inUse, ssid))
        return inUse;
    const GPtrArray *profiles = nm_client_get_connections(client);
    for (guint index = 0; profiles && index < profiles->len; ++index) {
        NMRemoteConnection *profile = NM_REMOTE_CONNECTION(profiles->pdata[index]);
        if (isProfileOf(profile, ssid))
            return profile;
    }
    return nullptr;
}

/// What NetworkManager's error means to the program. Every error of the bus passes here.
SecretStatus statusOf(const GError *error)
{
    const GlibPointer<gchar> name(g_dbus_error_get_remote_error(error));
    const QLatin1StringView text(name.get());
    if (text.endsWith(QLatin1StringView(".PermissionDenied")) || text.endsWith(QLatin1StringView(".AccessDenied")))
        return SecretStatus::PermissionDenied;
    if (text.endsWith(QLatin1StringView(".UserCanceled")))
        return SecretStatus::PromptCancelled;
    if (text.endsWith(QLatin1StringView(".NoSecrets")))
        return SecretStatus::NotStored;
    return SecretStatus::Unavailable;
}

/// The key in GetSecrets' answer, a{sa{sv}}; null without one.
GlibPointer<GVariant> keyIn(GVariant *answer, guint wepKeyIndex)
{
    const GlibPointer<GVariant> settings(g_variant_get_child_value(answer, 0));
    const GlibPointer<GVariant> security(
        g_variant_lookup_value(settings.get(), NM_SETTING_WIRELESS_SECURITY_SETTING_NAME, G_VARIANT_TYPE_VARDICT));
    if (!security)
        return {};
    static constexpr const char *wepKeys[] = {
        NM_SETTING_WIRELESS_SECURITY_WEP_KEY0, NM_SETTING_WIRELESS_SECURITY_WEP_KEY1,
        NM_SETTING_WIRELESS_SECURITY_WEP_KEY2, NM_SETTING_WIRELESS_SECURITY_WEP_KEY3};
    if (GVariant *psk = g_variant_lookup_value(security.get(), NM_SETTING_WIRELESS_SECURITY_PSK, G_VARIANT_TYPE_STRING))
        return GlibPointer<GVariant>(psk);
    if (wepKeyIndex >= std::size(wepKeys))
        return {};
    return GlibPointer<GVariant>(g_variant_lookup_value(security.get(), wepKeys[wepKeyIndex], G_VARIANT_TYPE_STRING));
}

void secretsArrived(GObject *bus, GAsyncResult *result, gpointer data)
{
    const std::unique_ptr<SecretRequest> request(static_cast<SecretRequest *>(data));
    GError *failure = nullptr;
    const GlibPointer<GVariant> answer(g_dbus_connection_call_finish(G_DBUS_CONNECTION(bus), result, &failure));
    if (!answer) {
        const GlibPointer<GError> error(failure);
        request->done(statusOf(error.get()), {});
        return;
    }
    const GlibPointer<GVariant> key = keyIn(answer.get(), request->wepKeyIndex);
    if (!key)
        request->done(SecretStatus::NotStored, {});
    else
        request->done(SecretStatus::Success, QString::fromUtf8(g_variant_get_string(key.get(), nullptr)));
}

} // namespace

void requestNetworkSecret(NMClient *client, NMDeviceWifi *device, GCancellable *cancellable, const QString &ssid,
                          HostWiFiPort::SecretCallback done)
{
    NMRemoteConnection *profile = profileFor(client, device, ssid);
    if (!profile) {
        done(SecretStatus::NotStored, {});
        return;
    }
    auto request = std::make_unique<SecretRequest>();
    request->done = std::move(done);
    if (auto *security = nm_connection_get_setting_wireless_security(NM_CONNECTION(profile)))
        request->wepKeyIndex = nm_setting_wireless_security_get_wep_tx_keyidx(security);
    g_dbus_connection_call(nm_client_get_dbus_connection(client), NM_DBUS_SERVICE,
                           nm_object_get_path(NM_OBJECT(profile)), NM_DBUS_INTERFACE_SETTINGS_CONNECTION, "GetSecrets",
                           g_variant_new("(s)", NM_SETTING_WIRELESS_SECURITY_SETTING_NAME),
                           G_VARIANT_TYPE("(a{sa{sv}})"), G_DBUS_CALL_FLAGS_NONE, secretLimitMilliseconds, cancellable,
                           &secretsArrived, request.release());
}
