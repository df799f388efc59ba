#pragma once

#include "WTError.h"
#include "WTManager.h"

#include <optional>

/// What a finished configuration send means to its caller.
struct ConfigurationOutcome {
    WTPrinterStatus status;
    quint16 result;

    bool operator==(const ConfigurationOutcome &) const = default;
};

/// An unreachable printer that sent no data outranks a result that it gave before; of the results 1 alone is a success.
/// @param result the code in the reply header, 0 when no header matched.
ConfigurationOutcome configurationOutcome(bool hasData, const std::optional<WTError> &error, quint16 result);
