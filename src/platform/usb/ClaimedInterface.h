#pragma once

#include "PrinterInterface.h"
#include "WTError.h"

#include <memory>

/// Keeps the kernel's driver off an interface for as long as it lives, if one was bound.
class KernelDriverPause
{
public:
    KernelDriverPause(libusb_device_handle *handle, int interface);
    ~KernelDriverPause();
    KernelDriverPause(const KernelDriverPause &) = delete;
    KernelDriverPause &operator=(const KernelDriverPause &) = delete;

private:
    libusb_device_handle *const m_handle;
    const int m_interface;
    const bool m_detached;
};

/// A claimed interface in its chosen alternate setting. Released in the end; then the kernel's driver comes back.
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

    const KernelDriverPause m_driverPause;
    libusb_device_handle *const m_handle;
    const int m_interface;
    const int m_claimResult;
};
