#pragma once

#include "WTLogger.h"

#include <QtGlobal>
#include <memory>

/// What the outside may know of a registration.
struct WTLoggerInformation {
    std::shared_ptr<WTLogger> logger;
    quint64 level = 0;

    static WTLoggerInformation informationWithLogger(const std::shared_ptr<WTLogger> &logger, quint64 andLevel)
    {
        return {logger, andLevel};
    }
};
