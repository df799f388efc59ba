#pragma once

#include "DescriptorSource.h"

/// Watches an open log file, and runs an action on a queue when the file is deleted or moved away.
class LogFileWatch
{
public:
    /// False when the system has no more watches to give.
    bool isWatching() const { return m_source.isWaiting(); }

    LogFileWatch(int logFile, std::shared_ptr<SerialQueue> queue, DescriptorSource::Action onGone);

private:
    DescriptorSource m_source;
};
