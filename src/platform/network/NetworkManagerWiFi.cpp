#include "NetworkManagerWiFi.h"

#include "GlibPointer.h"
#include "NetworkScan.h"
#include "NetworkSecret.h"
#include "NetworkThread.h"
#include "WirelessDevice.h"

#include <future>
#include <mutex>
#include <utility>

namespace
{

const QString errorDomain = QStringLiteral("NetworkManager");

/// The pause before the next attempt to reach a system bus that was not there.
constexpr TimePort::Duration busRetryPause = std::chrono::seconds(5);

WTError noDevice()
{
    return {errorDomain, 1,
            QStringLiteral("no networks: NetworkManager is not running or this computer has no wireless device")};
}

WTError radioOff(const QString &interface)
{
    return {errorDomain, 2, QStringLiteral("no networks: the radio of %1 is off; switch Wi-Fi on").arg(interface)};
}

ScanPermission permissionOf(NMClient *client)
{
    if (!client || !nm_client_get_nm_running(client))
        return ScanPermission::Unknown;
    if (nm_client_get_permissions_state(client) != NM_TERNARY_TRUE)
        return ScanPermission::NotDetermined;
    switch (nm_client_get_permission_result(client, NM_CLIENT_PERMISSION_WIFI_SCAN)) {
    case NM_CLIENT_PERMISSION_RESULT_YES:
        return ScanPermission::Allowed;
    case NM_CLIENT_PERMISSION_RESULT_NO:
        return ScanPermission::Denied;
    case NM_CLIENT_PERMISSION_RESULT_AUTH: // The scan itself asks the user.
    case NM_CLIENT_PERMISSION_RESULT_UNKNOWN:
        return ScanPermission::Unknown;
    }
    return ScanPermission::Unknown;
}

} // namespace

struct NetworkManagerWiFi::State {
    explicit State(TimePort &timePort)
        : time(timePort)
    {
    }

    static void clientMade(GObject *, GAsyncResult *result, gpointer state);
    static void hostChanged(State *state) { state->refresh(); }
    static void permissionChanged(State *state) { state->refreshPermission(); }

    void connectToHost();
    void connectLater();
    void disconnectFromHost();
    void watchClient();
    void watchDevice(NMDeviceWifi *device);
    void refresh();
    void refreshPermission();

    TimePort &time;

    // Written by the network thread, read by any.
    std::mutex mutex;
    HostWiFiState host;
    ScanPermission permission = ScanPermission::NotDetermined;
    std::function<void()> permissionWatcher;

    // The network thread's own.
    const GObjectPointer<GCancellable> operations{g_cancellable_new()}; ///< Cancelled when the connection ends.
    bool connecting = false;                                            ///< A client is being made.
    bool connected = false;                                             ///< The first answer, good or bad, is in.
    std::unique_ptr<TimePort::Timer> nextTry;
    GObjectPointer<NMClient> client;
    GObjectPointer<NMDeviceWifi> device;
    GObjectPointer<NMAccessPoint> accessPoint;
    std::vector<SignalConnection> clientSignals;
    SignalConnection deviceSignal;
    SignalConnection accessPointSignal;

    NetworkThread thread; ///< Last, so that it ends first.
};

void NetworkManagerWiFi::State::connectToHost()
{
    if (g_cancellable_is_cancelled(operations.get()))
        return;
    connecting = true;
    nm_client_new_async(operations.get(), &State::clientMade, this);
}

void NetworkManagerWiFi::State::connectLater()
{
    nextTry = time.after(busRetryPause, [this] { thread.post([this] { connectToHost(); }); });
}

void NetworkManagerWiFi::State::clientMade(GObject *, GAsyncResult *result, gpointer data)
{
    auto *state = static_cast<State *>(data);
    GError *failure = nullptr;
    state->client.reset(NM_CLIENT(nm_client_new_finish(result, &failure)));
    const GlibPointer<GError> error(failure);
    state->connecting = false;
    state->connected = true;
    if (state->client)
        state->watchClient();
    else if (!g_cancellable_is_cancelled(state->operations.get()))
        state->connectLater();
    state->refresh();
    state->refreshPermission();
}

void NetworkManagerWiFi::State::disconnectFromHost()
{
    GMainContext *context = g_main_context_get_thread_default();
    g_cancellable_cancel(operations.get());
    nextTry.reset();
    // The creation of a client may not be left halfway: the bus connection that it opens is the whole process's.
    while (connecting)
        g_main_context_iteration(context, TRUE);
    accessPointSignal = {};
    deviceSignal = {};
    clientSignals.clear();
    accessPoint.reset();
    device.reset();
    // libnm ends in the background: the watcher object goes when nothing of the client is left on this context.
    GObject *busy = client ? nm_client_get_context_busy_watcher(client.get()) : nullptr;
    bool ended = busy == nullptr;
    if (busy)
        g_object_weak_ref(
            busy, [](gpointer flag, GObject *) { *static_cast<bool *>(flag) = true; }, &ended);
    client.reset();
    while (!ended)
        g_main_context_iteration(context, TRUE);
    while (g_main_context_pending(context))
        g_main_context_iteration(context, FALSE);
}

void NetworkManagerWiFi::State::watchClient()
{
    for (const char *signal : {"notify", NM_CLIENT_DEVICE_ADDED, NM_CLIENT_DEVICE_REMOVED})
        clientSignals.emplace_back(client.get(), signal, G_CALLBACK(&State::hostChanged), this);
    for (const char *signal : {"permission-changed", "notify::" NM_CLIENT_PERMISSIONS_STATE, "notify::nm-running"})
        clientSignals.emplace_back(client.get(), signal, G_CALLBACK(&State::permissionChanged), this);
}

void NetworkManagerWiFi::State::watchDevice(NMDeviceWifi *current)
{
    if (current != device.get()) {
        deviceSignal = {};
        device = shareObject(current);
        if (current)
            deviceSignal = SignalConnection(current, "notify", G_CALLBACK(&State::hostChanged), this);
    }
    NMAccessPoint *joined = current ? nm_device_wifi_get_active_access_point(current) : nullptr;
    if (joined != accessPoint.get()) {
        accessPointSignal = {};
        accessPoint = shareObject(joined);
        if (joined)
            accessPointSignal = SignalConnection(joined, "notify", G_CALLBACK(&State::hostChanged), this);
    }
}

void NetworkManagerWiFi::State::refresh()
{
    NMDeviceWifi *current =
        client && nm_client_get_nm_running(client.get()) ? defaultWirelessDevice(client.get()) : nullptr;
    watchDevice(current);
    HostWiFiState seen = current ? wirelessState(client.get(), current) : HostWiFiState{};
    const std::lock_guard lock(mutex);
    host = std::move(seen);
}

void NetworkManagerWiFi::State::refreshPermission()
{
    const ScanPermission seen = permissionOf(client.get());
    std::function<void()> watcher;
    {
        const std::lock_guard lock(mutex);
        permission = seen;
        watcher = permissionWatcher;
    }
    if (watcher && seen != ScanPermission::NotDetermined)
        watcher();
}

NetworkManagerWiFi::NetworkManagerWiFi(TimePort &time)
    : m_state(std::make_unique<State>(time))
{
    m_state->thread.post([state = m_state.get()] { state->connectToHost(); });
}

NetworkManagerWiFi::~NetworkManagerWiFi()
{
    std::promise<void> disconnected;
    m_state->thread.post([&] {
        m_state->disconnectFromHost();
        disconnected.set_value();
    });
    disconnected.get_future().wait();
}

HostWiFiState NetworkManagerWiFi::state()
{
    const std::lock_guard lock(m_state->mutex);
    return m_state->host;
}

void NetworkManagerWiFi::scan(NetworksCallback done)
{
    m_state->thread.post([state = m_state.get(), done = std::move(done)] {
        const HostWiFiState host =
            state->client && state->device ? wirelessState(state->client.get(), state->device.get()) : HostWiFiState{};
        if (host.interfaceName.isEmpty())
            done(noDevice());
        else if (!host.poweredOn)
            done(radioOff(host.interfaceName));
        else
            startNetworkScan(state->device.get(), state->thread, state->time, state->operations.get(), done);
    });
}

void NetworkManagerWiFi::storedPassword(const QString &ssid, SecretCallback done)
{
    m_state->thread.post([state = m_state.get(), ssid, done = std::move(done)] {
        if (!state->client || !nm_client_get_nm_running(state->client.get()))
            done(SecretStatus::Unavailable, {});
        else
            requestNetworkSecret(state->client.get(), state->device.get(), state->operations.get(), ssid, done);
    });
}

ScanPermission NetworkManagerWiFi::scanPermission()
{
    const std::lock_guard lock(m_state->mutex);
    return m_state->permission;
}

void NetworkManagerWiFi::watchScanPermission(std::function<void()> changed)
{
    {
        const std::lock_guard lock(m_state->mutex);
        m_state->permissionWatcher = std::move(changed);
    }
    m_state->thread.post([state = m_state.get()] {
        if (state->connected)
            state->refreshPermission();
    });
}
