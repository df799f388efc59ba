#include "UsbSysfs.h"

#include <QFile>
#include <array>
#include <filesystem>
#include <libusb.h>

using namespace Qt::Literals::StringLiterals;

namespace
{

// The greatest depth of a USB tree (libusb_get_port_numbers).
constexpr int maximumPorts = 7;
constexpr QLatin1StringView devicesFolder{"/sys/bus/usb/devices"};

std::optional<QString> readAttribute(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return QString::fromUtf8(file.readAll()).trimmed();
}

} // namespace

UsbSysfs::UsbSysfs(libusb_device *device)
    : m_name(QString::number(libusb_get_bus_number(device)))
{
    std::array<quint8, maximumPorts> ports{};
    const int count = libusb_get_port_numbers(device, ports.data(), maximumPorts);
    for (int i = 0; i < count; ++i)
        m_name += (i == 0 ? u"-%1"_s : u".%1"_s).arg(ports.at(static_cast<std::size_t>(i)));
}

std::optional<QString> UsbSysfs::attribute(const QString &name) const
{
    return readAttribute(u"%1/%2/%3"_s.arg(devicesFolder, m_name, name));
}

std::optional<QString> UsbSysfs::interfaceAttribute(int configuration, int interface, const QString &name) const
{
    return readAttribute(interfaceFolder(configuration, interface) + u'/' + name);
}

std::optional<QString> UsbSysfs::interfaceDriver(int configuration, int interface) const
{
    std::error_code none;
    const auto link =
        std::filesystem::read_symlink(interfaceFolder(configuration, interface).toStdString() + "/driver", none);
    if (none)
        return std::nullopt;
    return QString::fromStdString(link.filename());
}

QString UsbSysfs::interfaceFolder(int configuration, int interface) const
{
    return u"%1/%2/%2:%3.%4"_s.arg(devicesFolder, m_name).arg(configuration).arg(interface);
}
