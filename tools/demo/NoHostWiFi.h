#pragma once

#include "HostWiFiPort.h"

/// The Wi-Fi of a computer that has none: no interface, nothing to see, nothing stored.
class NoHostWiFi : public HostWiFiPort
{
public:
    HostWiFiState state() override { return {}; }
    void scan(NetworksCallback done) override { done(std::vector<VisibleNetwork>{}); }
    void storedPassword(const QString &, SecretCallback done) override { done(SecretStatus::Unavailable, {}); }
    ScanPermission scanPermission() override { return ScanPermission::Unknown; }
    void watchScanPermission(std::function<void()> changed) override
    {
        if (changed)
            changed();
    }
};
