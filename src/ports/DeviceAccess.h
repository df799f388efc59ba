#pragma once

/// What decides whether the person may use a printer that is plugged in, where its device node says no.
struct DeviceAccess {
    bool ruleInstalled = true; ///< The package's udev rule lies where udev looks for rules.
    bool isOnSeat = true;      ///< The person sits at the computer, so that the rule lets them use its devices.
};
