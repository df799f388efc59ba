#pragma once

#include "HostWiFiPort.h"

#include <memory>

class TimePort;

/// The computer's Wi-Fi as NetworkManager knows it, through libnm on a thread of its own. NetworkManager may be absent,
/// come, go and restart at any time: the state then says "no interface", a scan and a secret answer with an error.
class NetworkManagerWiFi : public HostWiFiPort
{
public:
    /// Connects in the background.
    explicit NetworkManagerWiFi(TimePort &time);
    ~NetworkManagerWiFi() override;

    HostWiFiState state() override;
    void scan(NetworksCallback done) override;
    void storedPassword(const QString &ssid, SecretCallback done) override;
    ScanPermission scanPermission() override;
    void watchScanPermission(std::function<void()> changed) override;

private:
    struct State;
    std::unique_ptr<State> m_state;
};
