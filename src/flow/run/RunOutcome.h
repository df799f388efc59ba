#pragma once

#include <QtGlobal>
#include <optional>

/// Where a run ends: the screen to push and what to tell it first. An absent value leaves what the screen has.
struct RunOutcome {
    enum class Screen { Complete, Failed, ConfigFailed };

    Screen screen = Screen::Complete;
    std::optional<bool> showInterfaceError = {};
    std::optional<bool> showWiFiCapabilityError = {};
    std::optional<quint64> wifiCapabilityError = {};

    bool operator==(const RunOutcome &) const = default;
};

/// Reasons why the printer cannot take a configuration, as the failure screen numbers them.
enum class CapabilityReason : quint64 {
    NoWiFiModule = 0,
    WiFiFault = 1,
    Upgrading = 2,
    Unknown = 3,
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
    RunOutcome outcome;
    bool closeQuits = false; ///< The close button then quits without asking.

    bool operator==(const RunEnd &) const = default;
};

/// Absent for a code that ends on no screen.
std::optional<RunEnd> runEnd(int endCode);

/// The failure screen that names the printer's Wi-Fi as the problem.
RunOutcome capabilityFailure(quint64 reason);
/// The failure screen that names the communication with the printer.
RunOutcome communicationFailure();
