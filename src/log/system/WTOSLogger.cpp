#include "WTOSLogger.h"

#include "CapturedLine.h"
#include "JournalLog.h"
#include "WTLogMessage.h"

using namespace Qt::Literals::StringLiterals;

WTOSLogger::WTOSLogger(const std::optional<QString> &subsystem, const std::optional<QString> &category)
    : m_subsystem(subsystem)
    , m_category(category)
{
}

std::shared_ptr<WTOSLogger> WTOSLogger::sharedInstance()
{
    static auto *const instance = new std::shared_ptr<WTOSLogger>(std::make_shared<WTOSLogger>());
    return *instance;
}

OSLogType WTOSLogger::typeForFlag(quint64 flag)
{
    switch (flag) {
    case WTLogFlagError:
        return OSLogType::Error;
    case WTLogFlagWarning:
    case WTLogFlagInfo:
        return OSLogType::Info;
    default:
        return OSLogType::Debug;
    }
}

std::shared_ptr<OSLog> WTOSLogger::getLogger() const
{
    if (m_subsystem && m_category)
        return std::make_shared<JournalLog>(*m_subsystem, *m_category);
    return std::make_shared<JournalLog>();
}

std::shared_ptr<OSLog> WTOSLogger::logger()
{
    if (!m_logger)
        m_logger = getLogger();
    return m_logger;
}

QString WTOSLogger::loggerName() const
{
    return u"com.wtlog.osLogger"_s;
}

void WTOSLogger::logMessage(const WTLogMessage &message)
{
    if (isCapturedLine(message))
        return;
    const auto handle = logger();
    const std::optional<QString> text = textForMessage(message);
    if (text)
        handle->send(typeForFlag(message.flag()), *text);
}

std::optional<QString> WTOSLogger::subsystem() const
{
    return m_subsystem;
}

std::optional<QString> WTOSLogger::category() const
{
    return m_category;
}

void WTOSLogger::setLogger(const std::shared_ptr<OSLog> &logger)
{
    m_logger = logger;
}
