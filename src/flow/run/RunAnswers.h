#pragma once

#include "PrinterAnswer.h"
#include "RunOutcome.h"

/// What the printer's answer to "can you be configured?" leads to.
struct CapabilityDecision {
    enum class Action { Configure, CommunicationFailure, ShowError };

    Action action = Action::ShowError;
    CapabilityReason reason = CapabilityReason::Unknown; ///< For `ShowError`.

    bool operator==(const CapabilityDecision &) const = default;
};

/// @param result counts only with a success.
CapabilityDecision capabilityDecision(WTPrinterStatus status, CapabilityResult result);

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

/// @param result counts only with a success.
ConfigurationDecision configurationDecision(WTPrinterStatus status, ConfigurationResult result);

/// What the answer to an address query leads to.
struct AddressDecision {
    enum class Action {
        Succeed,
        Retry,
        Nothing, ///< The run asks no more, but does not end.
    };

    Action action = Action::Nothing;
    const char *logFormat = nullptr; ///< Takes the answer's text; none for `Nothing`.
    quint64 tag = 0;                 ///< Names the cause of a retry in the log.
};

AddressDecision addressDecision(WTPrinterStatus status);
