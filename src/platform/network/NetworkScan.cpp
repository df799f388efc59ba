#include "NetworkScan.h"

#include "GlibPointer.h"
#include "WirelessDevice.h"

#include <optional>
#include <utility>

namespace
{

constexpr TimePort::Duration scanLimit = std::chrono::seconds(10);

/// One scan. It owns itself from `request` to `answer`; GLib's callback of the request holds it as well, since it may
/// come later than the answer.
class NetworkScan : public std::enable_shared_from_this<NetworkScan>
{
public:
    NetworkScan(NMDeviceWifi *device, HostWiFiPort::NetworksCallback done)
        : m_device(shareObject(device))
        , m_done(std::move(done))
        , m_lastScan(nm_device_wifi_get_last_scan(device))
    {
    }

    void request(NetworkThread &thread, TimePort &time, GCancellable *cancellable)
    {
        m_self = shared_from_this();
        m_cancelled = SignalConnection(cancellable, "cancelled", G_CALLBACK(&NetworkScan::cancelled), this);
        m_lastScanChanged = SignalConnection(m_device.get(), "notify::" NM_DEVICE_WIFI_LAST_SCAN,
                                             G_CALLBACK(&NetworkScan::lastScanChanged), this);
        m_limit = time.after(scanLimit, [&thread, scan = weak_from_this()] {
            thread.post([scan] {
                if (const auto alive = scan.lock())
                    alive->answer();
            });
        });
        nm_device_wifi_request_scan_async(m_device.get(), cancellable, &NetworkScan::requested,
                                          new std::shared_ptr<NetworkScan>(shared_from_this()));
    }

private:
    static void requested(GObject *device, GAsyncResult *result, gpointer data)
    {
        const std::unique_ptr<std::shared_ptr<NetworkScan>> scan(static_cast<std::shared_ptr<NetworkScan> *>(data));
        GError *error = nullptr;
        if (nm_device_wifi_request_scan_finish(NM_DEVICE_WIFI(device), result, &error))
            return;
        // Too soon after the last scan, or not allowed: what the host knows already is the answer.
        g_error_free(error);
        (*scan)->answer();
    }

    static void lastScanChanged(NetworkScan *scan)
    {
        if (nm_device_wifi_get_last_scan(scan->m_device.get()) > scan->m_lastScan)
            scan->answer();
    }

    static void cancelled(NetworkScan *scan) { scan->answer(); }

    void answer()
    {
        const std::shared_ptr<NetworkScan> last = std::move(m_self);
        if (!last)
            return;
        m_lastScanChanged = {};
        m_cancelled = {};
        m_limit.reset();
        m_done(visibleNetworks(m_device.get()));
    }

    GObjectPointer<NMDeviceWifi> m_device;
    HostWiFiPort::NetworksCallback m_done;
    gint64 m_lastScan;
    SignalConnection m_lastScanChanged;
    SignalConnection m_cancelled;
    std::unique_ptr<TimePort::Timer> m_limit;
    std::shared_ptr<NetworkScan> m_self;
};

} // namespace

void startNetworkScan(NMDeviceWifi *device, NetworkThread &thread, TimePort &time, GCancellable *cancellable,
                      HostWiFiPort::NetworksCallback done)
{
    std::make_shared<NetworkScan>(device, std::move(done))->request(thread, time, cancellable);
}
