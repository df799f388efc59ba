#include "CapabilityAnswer.h"

#include <algorithm>
#include <array>

namespace
{

using Action = CapabilityDecision::Action;

struct Row {
    quint16 code;
    CapabilityDecision decision;
};

constexpr std::array rows{
    Row{1, {Action::Configure}},
    Row{0xFFFA, {Action::Configure}},
    Row{0xFFFB, {Action::CommunicationFailure}},
    Row{0xFFFC, {Action::ShowError, CapabilityReason::Unknown}},
    Row{0xFFFD, {Action::ShowError, CapabilityReason::WiFiFault}},
    Row{0xFFFE, {Action::ShowError, CapabilityReason::NoWiFiModule}},
    Row{0xFFFF, {Action::Configure}},
};

} // namespace

CapabilityDecision capabilityDecision(int status, quint16 code)
{
    if (status != 0)
        return {Action::ShowError, CapabilityReason::Unknown};
    const auto row = std::ranges::find(rows, code, &Row::code);
    return row == rows.end() ? CapabilityDecision{Action::ShowError, CapabilityReason::Unknown} : row->decision;
}
