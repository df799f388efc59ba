#pragma once

#include "UsbContext.h"
#include "UsbPort.h"

#include <map>
#include <mutex>

/// bus << 24, then one nibble per port of the path from the root hub, most significant first, right behind the bus:
/// port 2, then port 4 on bus 1 is 0x01240000. Ports past the sixth do not fit and are left out.
quint32 usbLocationID(libusb_device *device);

/// Collects what is known of the devices on the bus: from sysfs, and the device ID, if it is missing there, from the
/// device itself. A device is asked once for as long as it is plugged in: what it said is kept, and also that it said
/// nothing, which takes a second. Any thread.
class UsbDeviceFacts
{
public:
    /// @param context outlives this object.
    explicit UsbDeviceFacts(UsbContext &context);

    /// Ordered by location.
    UsbDeviceList collect(const std::vector<quint16> &vendorIDs);

private:
    /// A device whose ID is known, or empty after the device was asked in vain.
    struct Known {
        UsbDeviceReference reference; ///< Keeps the key from being used again.
        UsbDevice device;
    };

    UsbDevice factsOf(UsbDeviceReference device, const libusb_device_descriptor &descriptor);

    UsbContext &m_context;
    std::mutex m_mutex;
    std::map<libusb_device *, Known> m_known;
};
