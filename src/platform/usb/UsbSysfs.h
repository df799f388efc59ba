#pragma once

#include <QString>
#include <optional>

struct libusb_device;

/// A device's folder in sysfs. It may be read by everybody, also when the device node may not be opened.
class UsbSysfs
{
public:
    explicit UsbSysfs(libusb_device *device);

    /// A text attribute without its line end ("product"); absent when the device has none.
    std::optional<QString> attribute(const QString &name) const;

    /// The same of an interface ("ieee1284_id", there while the kernel's printer driver is bound).
    std::optional<QString> interfaceAttribute(int configuration, int interface, const QString &name) const;

    /// The driver that has an interface: "usblp", or "usbfs" while a program has claimed it. Absent when none has.
    std::optional<QString> interfaceDriver(int configuration, int interface) const;

private:
    QString interfaceFolder(int configuration, int interface) const;

    QString m_name; ///< Bus and port path, "1-2.4".
};
