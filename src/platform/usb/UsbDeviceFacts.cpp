#include "UsbDeviceFacts.h"

#include "DeviceQuestions.h"
#include "PrinterInterface.h"
#include "UsbSysfs.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr int locatedPorts = 6;
constexpr int busShift = 24;

UsbDevice describe(libusb_device *device, const libusb_device_descriptor &descriptor, const UsbSysfs &sysfs)
{
    const auto text = [&sysfs](const QString &attribute) { return sysfs.attribute(attribute).value_or(QString()); };
    return {.vendorID = descriptor.idVendor,
            .productID = descriptor.idProduct,
            .locationID = usbLocationID(device),
            .manufacturer = text(u"manufacturer"_s),
            .product = text(u"product"_s),
            .serialNumber = text(u"serial"_s),
            .ieee1284DeviceID = {}};
}

/// The device ID of the interface that a connection would use: from sysfs, where the kernel's driver leaves it, else,
/// if that is wanted, from the device. Absent when neither could tell now.
std::optional<QString> deviceID(libusb_device *device, const UsbSysfs &sysfs, bool mayAsk)
{
    const UsbConfiguration configuration = activeConfiguration(device);
    const auto interface = configuration ? choosePrinterInterface(*configuration) : std::nullopt;
    if (!interface)
        return std::nullopt;
    auto id = sysfs.interfaceAttribute(configuration->bConfigurationValue, interface->number, u"ieee1284_id"_s);
    if (!id && mayAsk)
        id = askDeviceID(device, *interface);
    return id;
}

} // namespace

quint32 usbLocationID(libusb_device *device)
{
    std::array<quint8, locatedPorts + 1> ports{};
    const int count = libusb_get_port_numbers(device, ports.data(), static_cast<int>(ports.size()));
    quint32 location = quint32{libusb_get_bus_number(device)} << busShift;
    for (int i = 0; i < std::min(count, locatedPorts); ++i)
        location |= (ports.at(static_cast<std::size_t>(i)) & 0xFU) << (busShift - 4 * (i + 1));
    return location;
}

UsbDeviceFacts::UsbDeviceFacts(UsbContext &context)
    : m_context(context)
{
}

UsbDeviceList UsbDeviceFacts::collect(const std::vector<quint16> &vendorIDs)
{
    const std::lock_guard lock(m_mutex);
    auto onBus = m_context.devices();
    std::erase_if(m_known, [&](const auto &known) {
        return std::ranges::none_of(onBus, [&](const auto &device) { return device.get() == known.first; });
    });

    UsbDeviceList list;
    for (UsbDeviceReference &device : onBus) {
        libusb_device_descriptor descriptor = {};
        libusb_get_device_descriptor(device.get(), &descriptor);
        if (std::ranges::find(vendorIDs, descriptor.idVendor) == vendorIDs.end())
            continue;
        list.push_back(factsOf(std::move(device), descriptor));
    }
    std::ranges::sort(list, {}, &UsbDevice::locationID);
    return list;
}

UsbDevice UsbDeviceFacts::factsOf(UsbDeviceReference device, const libusb_device_descriptor &descriptor)
{
    const auto known = m_known.find(device.get());
    const bool wasAsked = known != m_known.end();
    if (wasAsked && !known->second.device.ieee1284DeviceID.isEmpty())
        return known->second.device;
    const UsbSysfs sysfs(device.get());
    UsbDevice facts = describe(device.get(), descriptor, sysfs);
    const auto id = deviceID(device.get(), sysfs, !wasAsked);
    facts.ieee1284DeviceID = id.value_or(QString());
    if (id) {
        libusb_device *const key = device.get();
        m_known.insert_or_assign(key, Known{std::move(device), facts});
    }
    return facts;
}
