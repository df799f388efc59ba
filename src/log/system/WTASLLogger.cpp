#include "WTASLLogger.h"

#include "CapturedLine.h"
#include "SyslogClient.h"
#include "WTLogMessage.h"

#include <atomic>

using namespace Qt::Literals::StringLiterals;

namespace
{

std::atomic<bool> sharedInstanceExists = false;

} // namespace

std::shared_ptr<WTASLLogger> WTASLLogger::sharedInstance()
{
    static auto *const instance = [] {
        auto *made = new std::shared_ptr<WTASLLogger>(init());
        sharedInstanceExists = true;
        return made;
    }();
    return *instance;
}

std::shared_ptr<WTASLLogger> WTASLLogger::init()
{
    if (sharedInstanceExists)
        return nullptr;
    return std::make_shared<WTASLLogger>(std::make_unique<SyslogClient>());
}

WTASLLogger::WTASLLogger(std::unique_ptr<SystemLogClient> client)
    : m_client(std::move(client))
{
}

int WTASLLogger::levelForFlag(quint64 flag)
{
    switch (flag) {
    case WTLogFlagError:
        return 2;
    case WTLogFlagWarning:
        return 3;
    case WTLogFlagInfo:
        return 4;
    default:
        return 5;
    }
}

QString WTASLLogger::loggerName() const
{
    return u"com.wtlog.aslLogger"_s;
}

void WTASLLogger::logMessage(const WTLogMessage &message)
{
    if (isCapturedLine(message))
        return;
    if (const std::optional<QString> text = textForMessage(message))
        m_client->send(levelForFlag(message.flag()), text->toUtf8());
}
