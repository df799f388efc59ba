#pragma once

#include "ModelIdentity.h"
#include "UsbShape.h"

#include <QByteArray>
#include <QString>
#include <filesystem>

/// The place of one emulated device in sysfs, with what the kernel shows there.
class UsbfsSysfs
{
public:
    static constexpr int busNumber = 1;

    /// The first devices are in ports of the root hub, the others behind hubs in its next ports: a port whose number
    /// takes more than four bits has no location.
    /// @param root the bed's own root folder. @param number of the device on the bus, from 1 to `mostDevices`.
    UsbfsSysfs(const QString &root, int number);

    static constexpr int portsOfHub = 15, directDevices = 12, hubs = portsOfHub - directDevices;
    static constexpr int mostDevices = directDevices + hubs * portsOfHub;

    /// The test bed's description of the root hub.
    static QByteArray rootHub();
    /// The test bed's description of the device.
    QByteArray device(const ModelIdentity &identity, const UsbShape &shape, int deviceNumber) const;
    /// Creates the folders of the interfaces, with their attributes.
    void createInterfaces(const UsbShape &shape) const;
    /// Shows the driver of an interface, and the device ID while that driver is usblp, which reads it.
    void showDriver(int interface, const QString &driver, const ModelIdentity &identity) const;

    /// The test bed's description of the hub that the device is behind; empty when it is in a port of the root hub.
    QByteArray hub() const;
    /// Bus << 24, then four bits for each port on the way.
    quint32 locationID() const;

    QString name() const { return m_name; }
    /// "/sys/devices/usb1/1-1", "/sys/devices/usb1/1-13/1-13.4"
    QByteArray path() const;
    static QString nodePath(int deviceNumber);

private:
    std::filesystem::path interfaceFolder(int interface) const;

    std::filesystem::path m_sys;
    int m_hub;      ///< Its port of the root hub; 0 for none.
    int m_port;     ///< Of the hub, else of the root hub.
    QString m_name; ///< "1-1", "1-13.4"
};
