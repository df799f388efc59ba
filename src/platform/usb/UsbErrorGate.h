#pragma once

#include "UsbPort.h"

#include <libusb.h>

/// The one place where libusb's codes become errors of the domain "USB".

/// @param what was being done, on what: "opening /dev/bus/usb/001/004". The message reads "what: why".
WTError usbError(const UsbCause &cause, const QString &what, const QString &why);
bool isUsbError(const WTError &error, UsbErrorCode code);

/// @param code a `libusb_error` other than success, as libusb's functions return it.
WTError usbErrorFromLibrary(int code, const QString &what);

/// Absent for a completed transfer.
std::optional<WTError> usbErrorFromTransfer(libusb_transfer_status status, const QString &what);
