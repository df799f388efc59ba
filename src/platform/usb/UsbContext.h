#pragma once

#include "UsbHandles.h"

#include <atomic>
#include <mutex>
#include <vector>

/// libusb's context, made when it is first needed and there is a USB bus at all. Any thread.
class UsbContext
{
public:
    UsbContext();
    /// All devices and handles are gone by then.
    ~UsbContext();
    UsbContext(const UsbContext &) = delete;
    UsbContext &operator=(const UsbContext &) = delete;

    /// Null while the computer has no USB; every call looks again.
    libusb_context *obtain();
    /// What `obtain` has made so far, null before.
    libusb_context *current() const { return m_context; }

    /// All devices on the bus now.
    std::vector<UsbDeviceReference> devices();

private:
    std::mutex m_mutex;
    std::atomic<libusb_context *> m_context = nullptr;
};

/// Absent while the device is not configured.
UsbConfiguration activeConfiguration(libusb_device *device);
