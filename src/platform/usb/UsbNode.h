#pragma once

#include <QString>
#include <optional>

struct libusb_device;

/// The device node of usbfs.

/// "/dev/bus/usb/001/004".
QString usbNodePath(libusb_device *device);

/// The group whose members may open the node; empty when it is open to root alone, or to nobody that can be named.
QString usbNodeGroup(const QString &node);

/// A process that has a node open.
struct UsbNodeHolder {
    QString program; ///< "ipp-usb".
    qint64 pid = 0;
};

/// The other process that has the node open. Absent when there is none, and when its descriptors may not be looked at.
std::optional<UsbNodeHolder> usbNodeHolder(const QString &node);
