#include "ConfigurationAnswer.h"

#include <algorithm>
#include <array>

namespace
{

using Action = ConfigurationDecision::Action;

struct ResponseRow {
    quint16 respCode;
    ConfigurationDecision decision;
};

struct ErrorRow {
    int errorCode;
    ConfigurationDecision decision;
};

/// Every other response accepts the configuration.
constexpr std::array responseRows{
    ResponseRow{0, {Action::CloseTimer}},
    ResponseRow{0xFFFB, {Action::End, RunEndCode::InterfaceError}},
    ResponseRow{0xFFFC, {Action::End, RunEndCode::Upgrading}},
    ResponseRow{0xFFFF, {Action::End, RunEndCode::InterfaceError}},
};

/// Every other error leaves the run waiting.
constexpr std::array errorRows{
    ErrorRow{1, {Action::End, RunEndCode::ConfigurationFailed}},
    ErrorRow{2, {Action::End, RunEndCode::Unreachable}},
    ErrorRow{3, {Action::Retry}},
};

} // namespace

ConfigurationDecision configurationDecision(int errorCode, quint16 respCode)
{
    if (errorCode == 0) {
        const auto row = std::ranges::find(responseRows, respCode, &ResponseRow::respCode);
        return row == responseRows.end() ? ConfigurationDecision{Action::PollAddress} : row->decision;
    }
    const auto row = std::ranges::find(errorRows, errorCode, &ErrorRow::errorCode);
    return row == errorRows.end() ? ConfigurationDecision{Action::Nothing} : row->decision;
}
