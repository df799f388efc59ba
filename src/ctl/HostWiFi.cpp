#include "HostWiFi.h"

#include "HostWiFiPort.h"
#include "MainThread.h"
#include "OnMainThreadAfter.h"
#include "WTApp.h"
#include "WTWiFiListViewModel.h"

#include <QPointer>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr TimePort::Duration longestWait = std::chrono::seconds(5);

} // namespace

HostWiFi::HostWiFi(const CommandPorts &ports, QObject *parent)
    : QObject(parent)
    , m_ports(ports)
{
}

HostWiFi::~HostWiFi()
{
    m_ports.hostWiFi.watchScanPermission({});
}

void HostWiFi::whenReady(std::function<void()> ready)
{
    m_ready = std::move(ready);
    m_limit = onMainThreadAfter(m_ports.time, longestWait, [this] { beReady(); });
    m_ports.hostWiFi.watchScanPermission([host = QPointer(this)] {
        onMainThread([host] {
            if (host)
                host->beReady();
        });
    });
}

void HostWiFi::beReady()
{
    m_ports.hostWiFi.watchScanPermission({});
    m_limit.reset();
    if (const auto ready = std::exchange(m_ready, {}))
        ready();
}

void HostWiFi::look(std::function<void(const NetworksInSight &)> done)
{
    whenReady([this, done = std::move(done)] {
        if (m_ports.hostWiFi.scanPermission() == ScanPermission::Denied)
            done({.problem = u"NetworkManager does not permit you to look for networks"_s, .isForbidden = true});
        else
            scan(done);
    });
}

void HostWiFi::scan(const std::function<void(const NetworksInSight &)> &done)
{
    WTC_WLAN::getWiFiList(
        [host = QPointer(this), done](const std::vector<WTC_WLAN> &items, const std::optional<WTError> &error) {
            onMainThread([host, done, items, error] {
                if (!host)
                    return;
                if (error) {
                    done({.problem = error->message});
                    return;
                }
                WTApp::shared().checkPcNetState();
                const CommandPorts &ports = host->m_ports;
                WTWiFiListViewModel model({ports.hostWiFi, ports.time, ports.spooler});
                model.reloadDataSource(items, [] {});
                done({.networks = model.list_WIFI()});
            });
        });
}
