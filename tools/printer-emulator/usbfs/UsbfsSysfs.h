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

    /// @param root the bed's own root folder. @param port of the root hub, from 1.
    UsbfsSysfs(const QString &root, int port);

    /// The test bed's description of the root hub.
    static QByteArray rootHub();
    /// The test bed's description of the device.
    QByteArray device(const ModelIdentity &identity, const UsbShape &shape, int deviceNumber) const;
    /// Creates the folders of the interfaces, with their attributes.
    void createInterfaces(const UsbShape &shape) const;
    /// Shows the driver of an interface, and the device ID while that driver is usblp, which reads it.
    void showDriver(int interface, const QString &driver, const ModelIdentity &identity) const;

    QString name() const { return m_name; }
    /// "/sys/devices/usb1/1-1"
    QByteArray path() const;
    static QString nodePath(int deviceNumber);

private:
    std::filesystem::path interfaceFolder(int interface) const;

    std::filesystem::path m_sys;
    QString m_name; ///< "1-1"
};
