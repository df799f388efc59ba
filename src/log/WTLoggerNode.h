#pragma once

#include "SerialQueue.h"
#include "WTLogMessage.h"
#include "WTLogger.h"

#include <memory>

/// One registration of a logger.
struct WTLoggerNode {
    std::shared_ptr<WTLogger> logger;
    /// The flags the registration admits.
    quint64 level = 0;
    /// The serial queue on which the logger runs.
    std::shared_ptr<SerialQueue> loggerQueue;

    static WTLoggerNode nodeWithLogger(const std::shared_ptr<WTLogger> &logger,
                                       const std::shared_ptr<SerialQueue> &loggerQueue, quint64 level)
    {
        return {logger, level, loggerQueue};
    }

    bool admits(const WTLogMessage &message) const { return (message.flag() & level) != 0; }
};
