#pragma once

#include <QByteArray>
#include <libusb.h>
#include <memory>

/// The same bytes through libusb alone: one thread, synchronous calls, errors end the process.
class BareExchange
{
public:
    BareExchange(quint16 vendorID, quint16 productID);

    /// Finds the printer on the bus, opens and claims it, writes `frame`, reads the header and the data that it
    /// announces, gives the printer back. @return the reply.
    QByteArray run(const QByteArray &frame);

private:
    libusb_device_handle *open();
    QByteArray read(libusb_device_handle *handle);

    struct Exit {
        void operator()(libusb_context *context) const { libusb_exit(context); }
    };

    std::unique_ptr<libusb_context, Exit> m_context;
    const quint16 m_vendorID;
    const quint16 m_productID;
};
