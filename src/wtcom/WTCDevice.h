#pragma once

#include "UsbPort.h"

#include <QString>
#include <optional>

/// A printer on the bus, as the search service reports it. Hidden characters in its texts stand as their numbers
/// (`visibleText`); the URI holds what the device said.
struct WTCDevice {
    QString printerType; ///< The device ID's MDL, else the product text.
    QString serialNumber;
    quint16 PID = 0;
    quint16 VID = 0;
    quint32 locationID = 0;
    QString manufacturer; ///< The device ID's MFG, else the manufacturer text.
    QString URI;          ///< "usb://MFG/MDL?serial=SN", percent-encoded.

    bool operator==(const WTCDevice &) const = default;
};

/// Keys of the IEEE 1284 device ID count in their short and long forms (MDL or MODEL, MFG or MANUFACTURER).
WTCDevice deviceFromUsb(const UsbDevice &device);

/// The first device of the list with this URI, or that had it while its device ID was not known yet.
std::optional<UsbDevice> deviceNamed(const QString &URI, const UsbDeviceList &devices);
