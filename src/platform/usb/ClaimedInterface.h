#pragma once

#include "PrinterInterface.h"
#include "WTError.h"

#include <memory>

/// A claimed interface in its chosen alternate setting. The kernel's driver, if one is bound, is detached by the claim,
/// and bound again when the destructor releases the interface.
class ClaimedInterface
{
public:
    /// One attempt. @param handle outlives the claim. @param what begins the message of a failure.
    static WTResult<std::unique_ptr<ClaimedInterface>> claim(libusb_device_handle *handle,
                                                             const PrinterInterface &interface, const QString &what);
    ~ClaimedInterface();
    ClaimedInterface(const ClaimedInterface &) = delete;
    ClaimedInterface &operator=(const ClaimedInterface &) = delete;

private:
    ClaimedInterface(libusb_device_handle *handle, int interface);

    libusb_device_handle *const m_handle;
    const int m_interface;
    const int m_claimResult;
};
