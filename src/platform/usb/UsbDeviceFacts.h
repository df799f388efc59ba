#pragma once

#include "UsbContext.h"
#include "UsbPort.h"

#include <map>
#include <mutex>

/// bus << 24, then one nibble per port of the path from the root hub, most significant first, right behind the bus:
/// port 2, then port 4 on bus 1 is 0x01240000. Ports past the sixth do not fit and are left out.
quint32 usbLocationID(libusb_device *device);

/// Collects what is known of the devices on the bus: from sysfs, and what is missing there from the device itself,
/// where it may be opened. What a device has said once is kept for as long as it is plugged in, since it cannot be
/// asked while its interface is in use. Any thread.
class UsbDeviceFacts
{
public:
    /// @param context outlives this object.
    explicit UsbDeviceFacts(UsbContext &context);

    /// Ordered by location.
    UsbDeviceList collect(const std::vector<quint16> &vendorIDs);

private:
    struct Known {
        UsbDeviceReference reference; ///< Keeps the key from being used again.
        UsbDevice device;
    };

    UsbContext &m_context;
    std::mutex m_mutex;
    std::map<libusb_device *, Known> m_known;
};
