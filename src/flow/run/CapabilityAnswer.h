#pragma once

#include "RunOutcome.h"

/// What the printer's answer to "can you be configured?" leads to.
struct CapabilityDecision {
    enum class Action { Configure, CommunicationFailure, ShowError };

    Action action = Action::ShowError;
    CapabilityReason reason = CapabilityReason::Unknown; ///< For `ShowError`.

    bool operator==(const CapabilityDecision &) const = default;
};

/// @param status 0, or what went wrong with the exchange.
/// @param code the printer's result code; counts only with status 0.
CapabilityDecision capabilityDecision(int status, quint16 code);
