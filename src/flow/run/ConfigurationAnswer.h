#pragma once

#include "RunOutcome.h"

/// What the answer to the configuration command leads to.
struct ConfigurationDecision {
    enum class Action {
        PollAddress,
        CloseTimer, ///< End with `ConfigurationFailed`, by way of `ff_closeTimer`.
        End,
        Retry,
        Nothing, ///< The run waits on.
    };

    Action action = Action::Nothing;
    RunEndCode endCode = RunEndCode::Unreachable; ///< For `End`.

    bool operator==(const ConfigurationDecision &) const = default;
};

/// @param errorCode 0, or what went wrong with the exchange.
/// @param respCode the printer's result code; counts only with error code 0.
ConfigurationDecision configurationDecision(int errorCode, quint16 respCode);
