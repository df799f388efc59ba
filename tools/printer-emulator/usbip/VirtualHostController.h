#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <chrono>
#include <optional>

/// A device's connection to the kernel's virtual host controller (vhci-hcd): a real USB device appears for as long as
/// it lives. Needs root and the module. Throws `std::runtime_error` that names the file or the call.
/// Source of the sysfs files `attach` and `status`: the kernel's drivers/usb/usbip/vhci_sysfs.c.
class VirtualHostController
{
public:
    /// Attaches a high-speed device at the first free port.
    VirtualHostController();
    ~VirtualHostController();
    VirtualHostController(const VirtualHostController &) = delete;
    VirtualHostController &operator=(const VirtualHostController &) = delete;

    /// Waits until there is something to read, at most for `limit`; for ever without one.
    void wait(std::optional<std::chrono::milliseconds> limit) const;
    bool hasInput() const;
    /// Exactly so many bytes; absent when the kernel has let go of the device.
    std::optional<QByteArray> read(qsizetype size);
    void write(QByteArrayView bytes);

private:
    int m_socket = -1;
};
