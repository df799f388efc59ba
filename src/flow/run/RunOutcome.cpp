#include "RunOutcome.h"

#include <algorithm>
#include <array>

namespace
{

using Screen = RunOutcome::Screen;

struct Row {
    RunEndCode code;
    RunEnd end;
};

constexpr auto upgrading = static_cast<quint64>(CapabilityReason::Upgrading);

constexpr std::array rows{
    Row{RunEndCode::Unreachable, {{Screen::Failed, false}}},
    Row{RunEndCode::Completed, {{Screen::Complete}, true}},
    Row{RunEndCode::ConfigurationFailed, {{Screen::ConfigFailed}}},
    Row{RunEndCode::NoAddress, {{Screen::Failed, false}}},
    Row{RunEndCode::InterfaceError, {{Screen::Failed, true}}},
    Row{RunEndCode::Upgrading, {{Screen::Failed, {}, true, upgrading}, true}},
};

} // namespace

std::optional<RunEnd> runEnd(int endCode)
{
    const auto row = std::ranges::find(rows, static_cast<RunEndCode>(endCode), &Row::code);
    return row == rows.end() ? std::nullopt : std::optional(row->end);
}

RunOutcome capabilityFailure(quint64 reason)
{
    return {Screen::Failed, {}, true, reason};
}

RunOutcome communicationFailure()
{
    return {Screen::Failed, true, false, {}};
}
