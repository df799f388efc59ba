#pragma once

#include "DeviceAccess.h"
#include "RunOutcome.h"

#include <QString>

/// Why something did not work and what one can do about it, in the interface language.
struct CauseText {
    QString cause{};  ///< Empty where nothing is known that the screen's headline does not say.
    QString advice{}; ///< Empty together with the cause.
    /// The error as support reads it, in English and in one line: the step, domain and code, the message.
    QString details{};

    bool operator==(const CauseText &) const = default;
};

/// What to tell a person of an error that ended a printer command; without details.
/// @param command the code of the command, which names the step in words.
CauseText causeText(const WTError &error, quint16 command, const DeviceAccess &access);
/// The same for the cause of a run.
CauseText causeText(const RunCause &cause, const DeviceAccess &access);
