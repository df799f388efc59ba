#include "DemoWiFi.h"

#include <utility>

namespace
{

constexpr TimePort::Duration scanTime = std::chrono::milliseconds(800);

} // namespace

DemoWiFi::DemoWiFi(TimePort &time, DemoHost host)
    : m_time(time)
    , m_host(std::move(host))
{
}

void DemoWiFi::scan(NetworksCallback done)
{
    m_scan = m_time.after(scanTime, [this, done = std::move(done)] { done(m_host.networks); });
}

void DemoWiFi::storedPassword(const QString &ssid, SecretCallback done)
{
    const bool isStored = !m_host.storedPassword.isEmpty() && m_host.wifi.ssid == ssid;
    done(isStored ? SecretStatus::Success : SecretStatus::NotStored, isStored ? m_host.storedPassword : QString());
}

void DemoWiFi::watchScanPermission(std::function<void()> changed)
{
    if (changed)
        changed();
}
