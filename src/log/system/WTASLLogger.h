#pragma once

#include "SystemLogClient.h"
#include "WTAbstractLogger.h"

#include <memory>

/// Sends every line to the classic system log, for machines without a journal.
class WTASLLogger : public WTAbstractLogger
{
public:
    /// One for the process, made with the connection of syslog(3).
    static std::shared_ptr<WTASLLogger> sharedInstance();
    /// A logger with a connection of its own; none once the shared instance exists, so that at most one is ever opened.
    static std::shared_ptr<WTASLLogger> init();
    explicit WTASLLogger(std::unique_ptr<SystemLogClient> client);

    /// Error 2, warning 3, information 4, everything else 5.
    static int levelForFlag(quint64 flag);

    QString loggerName() const override;
    void logMessage(const WTLogMessage &message) override;

private:
    std::unique_ptr<SystemLogClient> m_client;
};
