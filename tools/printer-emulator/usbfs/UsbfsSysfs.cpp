#include "UsbfsSysfs.h"

#include "UsbDescriptors.h"

#include <fstream>

using namespace Qt::Literals::StringLiterals;
namespace fs = std::filesystem;

namespace
{
void write(const fs::path &file, const QByteArray &content)
{
    std::ofstream(file, std::ios::binary) << content.toStdString();
}

QByteArray hex(quint16 number, int digits)
{
    return QByteArray::number(number, 16).rightJustified(digits, '0');
}

/// Devices have the numbers below.
constexpr int firstHubNumber = 100;

QByteArray hubDescription(const QByteArray &path, int deviceNumber)
{
    const QByteArray number = QByteArray::number(deviceNumber), digits = number.rightJustified(3, '0');
    return "P: " + path + "\nE: SUBSYSTEM=usb\nE: DEVTYPE=usb_device\nE: BUSNUM=001\nE: DEVNUM=" + digits +
           "\nE: DEVNAME=/dev/bus/usb/001/" + digits + "\nA: busnum=1\\n\nA: devnum=" + number +
           "\\n\nA: bConfigurationValue=1\\n\nA: speed=480\\n\nH: descriptors=12010002090001406B1D0020150603020101"
           "09021900010100E0000904000001090000000705810304000C\n";
}
} // namespace

UsbfsSysfs::UsbfsSysfs(const QString &root, int number)
    : m_sys(fs::path(root.toStdString()) / "sys")
    , m_hub(number <= directDevices ? 0 : directDevices + 1 + (number - directDevices - 1) / portsOfHub)
    , m_port(m_hub == 0 ? number : 1 + (number - directDevices - 1) % portsOfHub)
    , m_name(m_hub == 0 ? u"%1-%2"_s.arg(busNumber).arg(m_port) : u"%1-%2.%3"_s.arg(busNumber).arg(m_hub).arg(m_port))
{
    Q_ASSERT(number <= mostDevices);
}

QByteArray UsbfsSysfs::rootHub()
{
    return hubDescription("/devices/usb1", 1);
}

QByteArray UsbfsSysfs::hub() const
{
    return m_hub == 0 ? QByteArray()
                      : hubDescription("/devices/usb1/1-" + QByteArray::number(m_hub), firstHubNumber + m_hub);
}

quint32 UsbfsSysfs::locationID() const
{
    const quint32 bus = static_cast<quint32>(busNumber) << 24;
    return m_hub == 0 ? bus | static_cast<quint32>(m_port) << 20
                      : bus | static_cast<quint32>(m_hub) << 20 | static_cast<quint32>(m_port) << 16;
}

QByteArray UsbfsSysfs::device(const ModelIdentity &identity, const UsbShape &shape, int deviceNumber) const
{
    const QByteArray number = QByteArray::number(deviceNumber);
    const auto property = [](const QByteArray &key, const QByteArray &value) {
        return "E: " + key + '=' + value + '\n';
    };
    const auto attribute = [](const QByteArray &key, const QByteArray &value) {
        return value.isEmpty() ? QByteArray() : "A: " + key + '=' + value + "\\n\n";
    };
    // Without an "N:" line the test bed leaves the node alone.
    return "P: " + path().sliced(QByteArrayView("/sys").size()) + '\n' + property("SUBSYSTEM", "usb") +
           property("DEVTYPE", "usb_device") + property("BUSNUM", "001") +
           property("DEVNUM", number.rightJustified(3, '0')) + property("DEVNAME", nodePath(deviceNumber).toUtf8()) +
           property("PRODUCT", hex(identity.vendorID, 1) + '/' + hex(identity.productID, 1) + "/100") +
           attribute("busnum", "1") + attribute("devnum", number) + attribute("devpath", name().sliced(2).toUtf8()) +
           attribute("idVendor", hex(identity.vendorID, 4)) + attribute("idProduct", hex(identity.productID, 4)) +
           attribute("manufacturer", identity.manufacturer.toUtf8()) +
           attribute("product", identity.product().toUtf8()) + attribute("serial", identity.serialNumber.toUtf8()) +
           attribute("bConfigurationValue", "1") + attribute("speed", "480") + "H: descriptors=" +
           (UsbDescriptors::device(identity) + UsbDescriptors::configuration(shape)).toHex().toUpper() + '\n';
}

void UsbfsSysfs::createInterfaces(const UsbShape &shape) const
{
    fs::create_directories(m_sys / "bus/usb/drivers/usblp");
    fs::create_directories(m_sys / "bus/usb/drivers/usbfs");
    for (int number = 0; number < static_cast<int>(shape.interfaces.size()); ++number) {
        const UsbShape::AlternateSetting &setting = shape.interfaces[number].front();
        const fs::path folder = interfaceFolder(number);
        const fs::path link = m_sys / "bus/usb/devices" / folder.filename();
        fs::create_directories(folder);
        fs::create_directories(link.parent_path());
        fs::remove(link);
        fs::create_symlink("../../../devices/usb1" / folder.lexically_relative(m_sys / "devices/usb1"), link);
        write(folder / "bInterfaceNumber", hex(static_cast<quint16>(number), 2) + '\n');
        write(folder / "bAlternateSetting", " 0\n");
        write(folder / "bNumEndpoints", setting.bulkIn ? "02\n" : "01\n");
        write(folder / "bInterfaceClass", hex(setting.interfaceClass, 2) + '\n');
        write(folder / "bInterfaceSubClass", hex(setting.interfaceSubclass, 2) + '\n');
        write(folder / "bInterfaceProtocol", hex(setting.protocol, 2) + '\n');
    }
}

void UsbfsSysfs::showDriver(int interface, const QString &driver, const ModelIdentity &identity) const
{
    const fs::path folder = interfaceFolder(interface);
    if (!fs::exists(folder))
        return;
    fs::remove(folder / "driver");
    fs::remove(folder / "ieee1284_id");
    if (!driver.isEmpty())
        fs::create_symlink((m_sys / "bus/usb/drivers" / driver.toStdString()).lexically_relative(folder),
                           folder / "driver");
    if (driver == u"usblp" && identity.hasDeviceID)
        write(folder / "ieee1284_id", identity.deviceID());
}

QByteArray UsbfsSysfs::path() const
{
    return "/sys/devices/usb1/" + (m_hub == 0 ? QByteArray() : "1-" + QByteArray::number(m_hub) + '/') +
           m_name.toUtf8();
}

QString UsbfsSysfs::nodePath(int deviceNumber)
{
    return u"/dev/bus/usb/%1/%2"_s.arg(busNumber, 3, 10, QLatin1Char('0')).arg(deviceNumber, 3, 10, QLatin1Char('0'));
}

fs::path UsbfsSysfs::interfaceFolder(int interface) const
{
    const std::string inSys = path().sliced(QByteArrayView("/sys/").size()).toStdString();
    return m_sys / inSys / (m_name.toStdString() + ":1." + std::to_string(interface));
}
