#include "UsbSysfs.h"

#include <QFile>
#include <array>
#include <libusb.h>

using namespace Qt::Literals::StringLiterals;

namespace
{

// USB allows seven tiers: the root port and at most six hubs' ports.
constexpr int maximumPorts = 7;

std::optional<QString> readAttribute(const QString &path)
{
    QFile file(u"/sys/bus/usb/devices/"_s + path);
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
    return readAttribute(u"%1/%2"_s.arg(m_name, name));
}

std::optional<QString> UsbSysfs::interfaceAttribute(int configuration, int interface, const QString &name) const
{
    return readAttribute(u"%1/%1:%2.%3/%4"_s.arg(m_name).arg(configuration).arg(interface).arg(name));
}
