#pragma once

#include "WTCUSBPrinter.h"

/// Errors of the domain "WTCOM". Their messages begin with the printer's URI.

/// @param cause absent for a failure that has nothing to do with the bus.
WTError libraryError(WTCErrorCode code, const QString &URI, const QString &why, const std::optional<UsbCause> &cause);

/// An error of the bus as the library reports it, with the same cause.
WTError libraryErrorFromBus(const QString &URI, const WTError &usbError);

WTError noSuchPrinter(const QString &URI);
