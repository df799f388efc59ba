#include "WTAbstractLogger.h"

#include "WTLog.h"

#include <cxxabi.h>
#include <typeinfo>
#include <utility>

void WTAbstractLogger::logMessage(const WTLogMessage & /*message*/) {}

std::shared_ptr<WTLogFormatting> WTAbstractLogger::logFormatter() const
{
    std::shared_ptr<WTLogFormatting> formatter;
    readOnQueues([&] { formatter = m_logFormatter; });
    return formatter;
}

void WTAbstractLogger::setLogFormatter(const std::shared_ptr<WTLogFormatting> &formatter)
{
    changeOnQueues([this, formatter] {
        if (formatter == m_logFormatter)
            return;
        if (m_logFormatter)
            m_logFormatter->willRemoveFromLogger(*this);
        m_logFormatter = formatter;
        if (m_logFormatter)
            m_logFormatter->didAddToLogger(*this, *loggerQueue());
    });
}

std::shared_ptr<SerialQueue> WTAbstractLogger::loggerQueue() const
{
    return m_loggerQueue.change([this](std::shared_ptr<SerialQueue> &queue) {
        if (!queue)
            queue = std::make_shared<SerialQueue>(loggerName());
        return queue;
    });
}

void WTAbstractLogger::setLoggerQueue(const std::shared_ptr<SerialQueue> &queue)
{
    // The old queue goes after the lock is released: its end waits for the jobs it still holds.
    const auto replaced =
        m_loggerQueue.change([&](std::shared_ptr<SerialQueue> &current) { return std::exchange(current, queue); });
}

QString WTAbstractLogger::loggerName() const
{
    const std::unique_ptr<char, decltype(&std::free)> name(
        abi::__cxa_demangle(typeid(*this).name(), nullptr, nullptr, nullptr), &std::free);
    return QString::fromUtf8(name.get());
}

bool WTAbstractLogger::isOnGlobalLoggingQueue() const
{
    return WTLog::loggingQueue().isCurrent();
}

bool WTAbstractLogger::isOnInternalLoggerQueue() const
{
    return loggerQueue()->isCurrent();
}

std::optional<QString> WTAbstractLogger::textForMessage(const WTLogMessage &message) const
{
    return m_logFormatter ? m_logFormatter->formatLogMessage(message) : message.message();
}

void WTAbstractLogger::readOnQueues(const std::function<void()> &job) const
{
    WTLog::loggingQueue().sync([&] { loggerQueue()->sync(job); });
}

void WTAbstractLogger::changeOnQueues(std::function<void()> job)
{
    WTLog::loggingQueue().async([self = shared_from_this(), job = std::move(job)]() mutable {
        const auto queue = self->loggerQueue();
        queue->async([self = std::move(self), job = std::move(job)] { job(); });
    });
}
