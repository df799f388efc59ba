#pragma once

#include <QtGlobal>
#include <optional>

/// What the answer to an address query leads to.
struct AddressDecision {
    enum class Action { Succeed, Retry };

    Action action = Action::Retry;
    const char *logFormat = nullptr; ///< Takes the answer's text.
    quint64 tag = 0;                 ///< Names the cause of a retry in the log.
};

/// Absent for a status that is not handled: the run waits no further and asks no more.
std::optional<AddressDecision> addressDecision(int status);
