#pragma once

#include "RunStep.h"
#include "WTError.h"

#include <QtGlobal>
#include <optional>

/// Reasons why the printer cannot take a configuration, as the failure screen numbers them.
enum class CapabilityReason : quint64 {
    NoWiFiModule = 0,
    WiFiFault = 1,
    Upgrading = 2,
    Unknown = 3,
};

/// Why a run did not succeed: the error that ended it and the step that was under way.
struct RunCause {
    RunStep step = RunStep::Idle;
    WTError error = {};

    bool operator==(const RunCause &) const = default;
};

/// Where a run ends: the screen to push and what to tell it first. An absent flag leaves what the screen has.
struct RunOutcome {
    enum class Screen { Complete, Failed, ConfigFailed };

    Screen screen = Screen::Complete;
    std::optional<bool> showInterfaceError = {};
    std::optional<bool> showWiFiCapabilityError = {};
    std::optional<CapabilityReason> wifiCapabilityError = {};
    std::optional<RunCause> cause = {}; ///< Absent for a success; the decision tables leave it to the run.

    bool operator==(const RunOutcome &) const = default;
};

/// Codes with which a run ends itself.
enum class RunEndCode : int {
    Unreachable = 0,
    Completed = 3,
    ConfigurationFailed = 4,
    NoAddress = 5,
    InterfaceError = 6,
    Upgrading = 7,
};

/// What an end code leads to.
struct RunEnd {
    RunOutcome outcome = {};
    bool closeQuits = false; ///< The close button then quits without asking.

    bool operator==(const RunEnd &) const = default;
};

/// Absent for a code that ends on no screen.
std::optional<RunEnd> runEnd(RunEndCode endCode);

/// The failure screen that names the printer's Wi-Fi as the problem.
RunOutcome capabilityFailure(CapabilityReason reason);
/// The failure screen that names the communication with the printer.
RunOutcome communicationFailure();
