#pragma once

#include <QByteArray>
#include <libusb.h>
#include <memory>

struct CloseUsb {
    void operator()(libusb_context *context) const { libusb_exit(context); }
    void operator()(libusb_device_handle *handle) const { libusb_close(handle); }
};

/// A plain libusb program's view of the first emulated printer: nothing of the product's own adapter.
class LibusbPrinter
{
public:
    LibusbPrinter();

    /// Whether the printer is on the bus, or comes within ten seconds.
    bool waitForArrival();
    /// The libusb error of opening it; 0 when it is open.
    int open();
    void close() { m_handle.reset(); }
    libusb_device_handle *handle() const { return m_handle.get(); }

    /// The libusb error of a transfer. `sent` is how many bytes went.
    int write(const QByteArray &bytes, unsigned timeout = 2000, int *sent = nullptr);
    int read(QByteArray &bytes, int atMost = 512, unsigned timeout = 2000);

private:
    std::unique_ptr<libusb_context, CloseUsb> m_context;
    std::unique_ptr<libusb_device_handle, CloseUsb> m_handle;
};
