#include "RunAnswers.h"

CapabilityDecision capabilityDecision(WTPrinterStatus status, CapabilityResult result)
{
    using Action = CapabilityDecision::Action;
    constexpr CapabilityDecision unknown{.action = Action::ShowError, .reason = CapabilityReason::Unknown};
    if (status != WTPrinterStatus::Success)
        return unknown;
    switch (result) {
    case CapabilityResult::Supported:
    case CapabilityResult::SupportedFFFA:
    case CapabilityResult::SupportedFFFF:
        return {.action = Action::Configure};
    case CapabilityResult::InterfaceFault:
        return {.action = Action::CommunicationFailure};
    case CapabilityResult::UnknownFault:
        return unknown;
    case CapabilityResult::WiFiFault:
        return {.action = Action::ShowError, .reason = CapabilityReason::WiFiFault};
    case CapabilityResult::NoWiFiModule:
        return {.action = Action::ShowError, .reason = CapabilityReason::NoWiFiModule};
    }
    return unknown; // A result without a name.
}

namespace
{

ConfigurationDecision acceptedConfigurationDecision(ConfigurationResult result)
{
    using Action = ConfigurationDecision::Action;
    switch (result) {
    case ConfigurationResult::None:
        return {.action = Action::CloseTimer};
    case ConfigurationResult::InterfaceFault:
    case ConfigurationResult::InterfaceFaultFFFF:
        return {.action = Action::End, .endCode = RunEndCode::InterfaceError};
    case ConfigurationResult::Upgrading:
        return {.action = Action::End, .endCode = RunEndCode::Upgrading};
    case ConfigurationResult::Joined:
        break;
    }
    return {.action = Action::PollAddress}; // A result without a name accepts, too.
}

} // namespace

ConfigurationDecision configurationDecision(WTPrinterStatus status, ConfigurationResult result)
{
    using Action = ConfigurationDecision::Action;
    switch (status) {
    case WTPrinterStatus::Success:
        return acceptedConfigurationDecision(result);
    case WTPrinterStatus::NoHeader:
        return {.action = Action::End, .endCode = RunEndCode::ConfigurationFailed};
    case WTPrinterStatus::LibraryError31:
        return {.action = Action::End, .endCode = RunEndCode::Unreachable};
    case WTPrinterStatus::CommandMismatch:
        return {.action = Action::Retry};
    case WTPrinterStatus::DataTooShort:
    case WTPrinterStatus::NoValidAddress:
    case WTPrinterStatus::NoData:
        break;
    }
    return {.action = Action::Nothing};
}

AddressDecision addressDecision(WTPrinterStatus status)
{
    using Action = AddressDecision::Action;
    switch (status) {
    case WTPrinterStatus::Success:
        return {.action = Action::Succeed, .logFormat = "WTACL_Success:%@"};
    case WTPrinterStatus::NoHeader:
        return {.action = Action::Retry, .logFormat = "WTACL_Fail:%@", .tag = 1026};
    case WTPrinterStatus::CommandMismatch:
        return {.action = Action::Retry, .logFormat = "WTACL_OtherAcl:%@", .tag = 1025};
    case WTPrinterStatus::NoValidAddress:
        return {.action = Action::Retry, .logFormat = "WTACL_Response_dataError:%@", .tag = 1028};
    case WTPrinterStatus::NoData:
        return {.action = Action::Retry, .logFormat = "WTACL_Response_nodataError:%@", .tag = 1024};
    case WTPrinterStatus::LibraryError31:
    case WTPrinterStatus::DataTooShort:
        break;
    }
    return {.action = Action::Nothing};
}
