#pragma once

#include "DemoHost.h"
#include "TimePort.h"

#include <memory>

/// The Wi-Fi of the demo's computer. A scan for networks takes some time, as on a real one.
class DemoWiFi : public HostWiFiPort
{
public:
    DemoWiFi(TimePort &time, DemoHost host);

    HostWiFiState state() override { return m_host.wifi; }
    void scan(NetworksCallback done) override;
    void storedPassword(const QString &ssid, SecretCallback done) override;
    ScanPermission scanPermission() override { return m_host.permission; }
    void watchScanPermission(std::function<void()> changed) override;

private:
    TimePort &m_time;
    const DemoHost m_host;
    std::unique_ptr<TimePort::Timer> m_scan;
};
