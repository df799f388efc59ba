#pragma once

#include "Command.h"
#include "HostWiFi.h"

class Output;

/// `wifitoolctl networks`: what the computer sees, its own network first.
class NetworksCommand : public Command
{
    Q_OBJECT

public:
    NetworksCommand(const CommandPorts &ports, Output &output);
    void start() override;

private:
    void list(const NetworksInSight &seen);
    void tell(const WTWiFi &network);

    Output &m_output;
    HostWiFi m_host;
};
