#pragma once

#include "SystemLogClient.h"

/// syslog(3). Its connection belongs to the process, so there is one client at most.
class SyslogClient : public SystemLogClient
{
public:
    SyslogClient();
    ~SyslogClient() override;
    SyslogClient(const SyslogClient &) = delete;
    SyslogClient &operator=(const SyslogClient &) = delete;

    void send(int level, const QByteArray &utf8Message) override;
};
