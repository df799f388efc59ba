#include "LogCollector.h"

#include "WTLog.h"

#include <mutex>

using namespace Qt::Literals::StringLiterals;

namespace
{

QLatin1StringView nameOf(quint64 flag)
{
    switch (static_cast<WTLogFlag>(flag)) {
    case WTLogFlagError:
        return "error"_L1;
    case WTLogFlagWarning:
        return "warning"_L1;
    case WTLogFlagInfo:
        return "info"_L1;
    case WTLogFlagDebug:
        return "debug"_L1;
    case WTLogFlagVerbose:
        return "verbose"_L1;
    }
    return "no single flag"_L1;
}

} // namespace

class LogCollector::Logger : public WTLogger
{
public:
    void logMessage(const WTLogMessage &message) override
    {
        const std::lock_guard lock{m_mutex};
        m_lines += nameOf(message.flag()) + ": "_L1 + message.message();
    }
    QStringList lines() const
    {
        const std::lock_guard lock{m_mutex};
        return m_lines;
    }
    void clear()
    {
        const std::lock_guard lock{m_mutex};
        m_lines.clear();
    }

private:
    mutable std::mutex m_mutex;
    QStringList m_lines;
};

LogCollector::LogCollector()
    : m_logger(std::make_shared<Logger>())
{
    WTLog::addLogger(m_logger);
}

LogCollector::~LogCollector()
{
    WTLog::removeLogger(m_logger);
    WTLog::flushLog();
}

QStringList LogCollector::lines() const
{
    WTLog::flushLog();
    return m_logger->lines();
}

QString LogCollector::firstMissing(const QStringList &expected) const
{
    const QStringList all = lines();
    qsizetype from = 0;
    for (const QString &line : expected) {
        const qsizetype found = all.indexOf(line, from);
        if (found < 0)
            return line;
        from = found + 1;
    }
    return {};
}

QStringList LogCollector::writtenSoFar() const
{
    return m_logger->lines();
}

void LogCollector::clear()
{
    WTLog::flushLog();
    m_logger->clear();
}
