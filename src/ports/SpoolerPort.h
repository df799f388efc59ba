#pragma once

#include "WTError.h"

#include <QByteArray>
#include <QString>
#include <chrono>
#include <optional>
#include <vector>

/// One print queue as the spooler lists it.
struct PrintDestination {
    QByteArray name;
    /// The option "printer-state": "3" is idle, "4" processing, "5" stopped (RFC 8011, 5.4.11).
    std::optional<QByteArray> printerState;
};

/// What a printer's address does when this computer knocks.
enum class PrinterReach {
    Answers,
    Refuses, ///< Something is there, but takes no print jobs.
    Silent,  ///< Nothing is there, or something keeps the two apart.
};

/// The host's print spooler, and its way to printers on the network.
class SpoolerPort
{
public:
    virtual ~SpoolerPort() = default;

    /// All destinations in the spooler's order; none when no spooler answers. Blocks for as long as the spooler takes,
    /// which may be for ever. Any thread.
    virtual std::vector<PrintDestination> destinations() = 0;

    /// Why this host cannot ask any spooler; absent where it can.
    virtual std::optional<WTError> problem() { return std::nullopt; }

    /// What this IP address does on the port of the printing protocol (RFC 8010, 631). Blocks, but not much longer than
    /// `atMost`.
    virtual PrinterReach printerReach(const QString &address, std::chrono::milliseconds atMost) = 0;
};
