#include "AddressAnswer.h"

#include "WTManager.h"

#include <algorithm>
#include <array>

namespace
{

using Action = AddressDecision::Action;

struct Row {
    WTPrinterStatus status;
    AddressDecision decision;
};

constexpr std::array rows{
    Row{WTPrinterStatus::Success, {Action::Succeed, "WTACL_Success:%@"}},
    Row{WTPrinterStatus::NoHeader, {Action::Retry, "WTACL_Fail:%@", 1026}},
    Row{WTPrinterStatus::CommandMismatch, {Action::Retry, "WTACL_OtherAcl:%@", 1025}},
    Row{WTPrinterStatus::NoValidAddress, {Action::Retry, "WTACL_Response_dataError:%@", 1028}},
    Row{WTPrinterStatus::NoData, {Action::Retry, "WTACL_Response_nodataError:%@", 1024}},
};

} // namespace

std::optional<AddressDecision> addressDecision(int status)
{
    const auto row = std::ranges::find(rows, static_cast<WTPrinterStatus>(status), &Row::status);
    return row == rows.end() ? std::nullopt : std::optional(row->decision);
}
