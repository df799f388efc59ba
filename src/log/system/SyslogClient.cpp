#include "SyslogClient.h"

#include <syslog.h>

SyslogClient::SyslogClient()
{
    openlog("com.apple.console", 0, LOG_USER);
}

SyslogClient::~SyslogClient()
{
    closelog();
}

void SyslogClient::send(int level, const QByteArray &utf8Message)
{
    syslog(level, "%s", utf8Message.constData());
}
