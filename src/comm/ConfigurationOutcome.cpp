#include "ConfigurationOutcome.h"

#include "WTCUSBPrinter.h"

namespace
{

constexpr quint16 joined = 1;

}

ConfigurationOutcome configurationOutcome(bool hasData, const std::optional<WTError> &error, quint16 result)
{
    constexpr auto unreachable = WTCErrorCode::Unreachable;
    if (!hasData && error && error->code == static_cast<int>(unreachable))
        return {.status = WTPrinterStatus::LibraryError31, .result = static_cast<quint16>(unreachable)};
    if (result == joined)
        return {.status = WTPrinterStatus::Success, .result = result};
    return {.status = WTPrinterStatus::NoHeader, .result = result};
}
