#pragma once

#include "PrinterInterface.h"

#include <QString>
#include <optional>

/// The IEEE 1284 device ID, asked of the device itself. Nothing is claimed, since the kernel lets this one request pass
/// whoever has the interface. Waits for the answer for at most a second.
/// @return absent when the question could not be put now, but perhaps later; empty when the device has no ID or does
/// not answer.
std::optional<QString> askDeviceID(libusb_device *device, const PrinterInterface &interface);
