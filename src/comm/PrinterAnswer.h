#pragma once

#include "WTError.h"

#include <QString>
#include <functional>
#include <optional>

/// How a printer command went. The numbers stand in the log.
enum class WTPrinterStatus : int {
    Success = 0,
    NoHeader = 1, ///< Also when the printer refused, as the result then tells.
    LibraryError31 = 2,
    CommandMismatch = 3,
    DataTooShort = 5,
    NoValidAddress = 6,
    NoData = 7,
};

/// The domain of faults in what a printer answered; their code is a `WTPrinterStatus`.
inline constexpr QLatin1StringView printerErrorDomain{"Printer"};
/// The domain of results with which a printer refuses; their code is the result.
inline constexpr QLatin1StringView printerResultDomain{"PrinterResult"};

/// What a printer says to "can you be configured?".
enum class CapabilityResult : quint16 {
    Supported = 1,
    SupportedFFFA = 0xFFFA, ///< Counts as `Supported`.
    InterfaceFault = 0xFFFB,
    UnknownFault = 0xFFFC,
    WiFiFault = 0xFFFD,
    NoWiFiModule = 0xFFFE,
    SupportedFFFF = 0xFFFF, ///< Counts as `Supported`.
};

/// What a printer says to a configuration.
enum class ConfigurationResult : quint16 {
    None = 0, ///< No reply, or none of this command.
    Joined = 1,
    InterfaceFault = 0xFFFB,
    Upgrading = 0xFFFC,
    InterfaceFaultFFFF = 0xFFFF, ///< Counts as `InterfaceFault`.
};

/// What came of a printer command that answers with a result.
struct ResultAnswer {
    WTPrinterStatus status = WTPrinterStatus::NoHeader;
    quint16 result = 0;                ///< The printer's result code; which enum numbers it, the command tells.
    std::optional<WTError> cause = {}; ///< Why the status is no success.

    bool operator==(const ResultAnswer &) const = default;
};

/// What came of an address query.
struct AddressAnswer {
    WTPrinterStatus status = WTPrinterStatus::NoData;
    QString text;                      ///< The address, else a text that tells the fault.
    std::optional<WTError> cause = {}; ///< Why the status is no success.

    bool operator==(const AddressAnswer &) const = default;
};
