#pragma once

#include "RunOutcome.h"

#include <QString>

/// What the failure screen says, as keys of the translations.
struct FailureText {
    QString text;   ///< What happened.
    QString advice; ///< What one can do about it.

    bool operator==(const FailureText &) const = default;
};

/// The capability reason counts only with `showWiFiCapabilityError`, and then outranks the interface error.
FailureText failureText(bool showInterfaceError, bool showWiFiCapabilityError, CapabilityReason wifiCapabilityError);
