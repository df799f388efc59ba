#include "WTAbstractLogger.h"

#include "WTLog.h"
#include "typeName.h"

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
    return typeName(typeid(*this));
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

void WTAbstractLogger::readOnQueues(const SerialQueue::Job &job) const
{
    WTLog::loggingQueue().sync([&] { loggerQueue()->sync(job); });
}

void WTAbstractLogger::changeOnQueues(SerialQueue::Job job)
{
    WTLog::loggingQueue().async([self = shared_from_this(), job = std::move(job)]() mutable {
        const auto queue = self->loggerQueue();
        queue->async([self = std::move(self), job = std::move(job)] { job(); });
    });
}
