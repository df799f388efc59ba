#pragma once

#include "DeviceAccess.h"
#include "WTError.h"

#include <QString>
#include <optional>

/// What an entry screen says of the printer that will be told the network, before anything is sent.
struct PrinterNote {
    QString text;
    bool isWarning = false; ///< Something stands in the way already.

    bool operator==(const PrinterNote &) const = default;
};

/// @param printer the model.
/// @param serialNumber tells printers of one model apart; may be empty.
/// @param count of the supported printers that are plugged in.
/// @param obstacle what a command to the printer would be refused with now.
PrinterNote printerNote(const QString &printer, const QString &serialNumber, qsizetype count,
                        const std::optional<WTError> &obstacle, const DeviceAccess &access);
