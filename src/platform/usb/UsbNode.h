#pragma once

#include <QString>
#include <optional>

struct libusb_device;

/// The device node of usbfs.

/// "/dev/bus/usb/001/004".
QString usbNodePath(libusb_device *device);

/// What the user can do to be let in, as the end of a sentence.
QString usbNodeAccessHint(const QString &node);

/// The other process that has the node open, "ipp-usb, pid 123". Absent when there is none, and when its descriptors
/// may not be looked at.
std::optional<QString> usbNodeHolder(const QString &node);
