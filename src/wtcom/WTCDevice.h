#pragma once

#include "UsbPort.h"

/// A printer on the bus, as the search service reports it.
struct WTCDevice {
    QString printerType;  ///< The device ID's MDL, else the product text.
    QString serialNumber;
    quint16 PID = 0;
    quint16 VID = 0;
    quint32 locationID = 0;
    QString manufacturer; ///< The device ID's MFG, else the manufacturer text.
    QString URI;          ///< "usb://MFG/MDL?serial=SN", percent-encoded.

    bool operator==(const WTCDevice &) const = default;
};

WTCDevice deviceFromUsb(const UsbDevice &device);
