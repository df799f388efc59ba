#include "ConfigurationOutcome.h"

#include "PrinterCommand.h"
#include "PrinterExchange.h"
#include "WTCUSBPrinter.h"

ResultAnswer configurationOutcome(bool hasData, const std::optional<WTError> &cause, quint16 result)
{
    constexpr auto unreachable = WTCErrorCode::Unreachable;
    const bool isUnreachable = cause && cause->domain == wtcErrorDomain && cause->code == static_cast<int>(unreachable);
    if (!hasData && isUnreachable)
        return {.status = WTPrinterStatus::LibraryError31, .result = static_cast<quint16>(unreachable), .cause = cause};
    switch (static_cast<ConfigurationResult>(result)) {
    case ConfigurationResult::Joined:
        return {.status = WTPrinterStatus::Success, .result = result};
    case ConfigurationResult::None:
        if (cause)
            return {.status = WTPrinterStatus::NoHeader, .result = result, .cause = cause};
        break;
    default:
        break;
    }
    return {.status = WTPrinterStatus::NoHeader,
            .result = result,
            .cause = PrinterExchange::refusal(PrinterCommand::wifiConfiguration, result)};
}
