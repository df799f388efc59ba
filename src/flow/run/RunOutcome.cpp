#include "RunOutcome.h"

std::optional<RunEnd> runEnd(RunEndCode endCode)
{
    using Screen = RunOutcome::Screen;
    switch (endCode) {
    case RunEndCode::Unreachable:
    case RunEndCode::NoAddress:
        return RunEnd{.outcome = {.screen = Screen::Failed, .showInterfaceError = false}};
    case RunEndCode::Completed:
        return RunEnd{.outcome = {.screen = Screen::Complete}, .closeQuits = true};
    case RunEndCode::ConfigurationFailed:
        return RunEnd{.outcome = {.screen = Screen::ConfigFailed}};
    case RunEndCode::InterfaceError:
        return RunEnd{.outcome = {.screen = Screen::Failed, .showInterfaceError = true}};
    case RunEndCode::Upgrading:
        return RunEnd{.outcome = capabilityFailure(CapabilityReason::Upgrading), .closeQuits = true};
    }
    return std::nullopt; // A code without a name, which the run's screen may be given.
}

RunOutcome capabilityFailure(CapabilityReason reason)
{
    return {.screen = RunOutcome::Screen::Failed, .showWiFiCapabilityError = true, .wifiCapabilityError = reason};
}

RunOutcome communicationFailure()
{
    return {.screen = RunOutcome::Screen::Failed, .showInterfaceError = true, .showWiFiCapabilityError = false};
}
