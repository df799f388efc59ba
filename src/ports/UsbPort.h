#pragma once

#include "WTError.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

/// What is known of a device without claiming it.
struct UsbDevice {
    quint16 vendorID = 0;
    quint16 productID = 0;
    /// Bus number << 24, then one nibble per port of the path from the root hub, most significant first.
    quint32 locationID = 0;
    QString manufacturer;
    QString product;
    QString serialNumber;
    /// The printer's IEEE 1284 device ID ("MFG:...;MDL:...;"). Empty when the device has none, and for as long as
    /// neither the kernel's printer driver has read it nor the device may be opened to be asked.
    QString ieee1284DeviceID;

    bool operator==(const UsbDevice &) const = default;
};

using UsbDeviceList = std::vector<UsbDevice>;

/// One claimed printer interface. Its destructor releases the interface and gives a detached kernel driver back.
/// Used by one thread at a time, `cancel` excepted. Reads and writes have no time limit of their own.
class UsbConnection
{
public:
    virtual ~UsbConnection() = default;

    /// Sends all bytes on the bulk OUT pipe; absent when they all went.
    [[nodiscard]] virtual std::optional<WTError> write(QByteArrayView bytes) = 0;

    /// Waits for the next bytes on the bulk IN pipe: 0 (a zero-length packet) to `atMost` of them, as they come.
    [[nodiscard]] virtual WTResult<QByteArray> read(qsizetype atMost) = 0;

    /// What the device has to say without having been asked, until it has been silent for a moment.
    virtual QByteArray drainInput() = 0;

    /// Ends the transfer under way and every later one with `Cancelled`. Any thread, any number of times.
    virtual void cancel() = 0;
};

/// The computer's USB bus, as far as printers need it.
class UsbPort
{
public:
    using ListChanged = std::function<void(const UsbDeviceList &)>;

    virtual ~UsbPort() = default;

    /// Reports the complete list of devices of these vendors, once soon after the call and then whenever it changes, on
    /// the port's watch thread. A second call replaces the first.
    virtual void watch(std::vector<quint16> vendorIDs, ListChanged changed) = 0;

    /// After it returns `changed` is not called any more, unless it is running on the calling thread.
    virtual void stopWatching() = 0;

    /// The devices of these vendors that are on the bus now.
    virtual UsbDeviceList devices(const std::vector<quint16> &vendorIDs) = 0;

    /// Opens the device and claims its printer interface (class 7, subclass 1, protocol 2, else protocol 1), detaching
    /// a kernel driver for as long as the connection lives. A busy interface is tried again a few times first.
    virtual WTResult<std::unique_ptr<UsbConnection>> open(const UsbDevice &device) = 0;

    /// What `open` would fail with now, its cause included; absent when the device is free. Neither claims anything nor
    /// talks to the device, and does not wait: a device that another program holds for a moment counts as held. A
    /// device that this program has open itself is free. Looks through the running processes for the holder's name, so
    /// not on the main thread.
    virtual std::optional<WTError> obstacle(const UsbDevice &device) = 0;
};
