#pragma once

#include "CommandPorts.h"
#include "TimePort.h"
#include "WTWiFi.h"

#include <QObject>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

/// The networks in sight.
struct NetworksInSight {
    std::vector<WTWiFiPtr> networks = {}; ///< The computer's own first.
    QString problem = {};                 ///< Why there are none; in English.
    bool isForbidden = false;             ///< The host does not permit to look.
};

/// The computer's own Wi-Fi for a command that has just been started: the service is waited for, five seconds at most,
/// before it is asked. Main thread; the answers come there, and not at all once this object is gone.
class HostWiFi : public QObject
{
    Q_OBJECT

public:
    HostWiFi(const CommandPorts &ports, QObject *parent = nullptr);
    ~HostWiFi() override;

    /// Calls `ready` when the service has answered or its time is over. One question at a time.
    void whenReady(std::function<void()> ready);
    void look(std::function<void(const NetworksInSight &)> done);

private:
    void beReady();
    void scan(const std::function<void(const NetworksInSight &)> &done);

    const CommandPorts m_ports;
    std::function<void()> m_ready;
    std::unique_ptr<TimePort::Timer> m_limit;
};
