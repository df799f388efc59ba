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

/// One device's facts, as far as sysfs and the device tell them.
class Inquiry
{
public:
    explicit Inquiry(libusb_device *device)
        : m_device(device)
        , m_sysfs(device)
    {
    }

    /// `isComplete` tells afterwards whether nothing is missing that another time might be had.
    UsbDevice describe(const libusb_device_descriptor &descriptor)
    {
        return {descriptor.idVendor,
                descriptor.idProduct,
                usbLocationID(m_device),
                text(u"manufacturer"_s, descriptor.iManufacturer),
                text(u"product"_s, descriptor.iProduct),
                text(u"serial"_s, descriptor.iSerialNumber),
                deviceID()};
    }

    bool isComplete() const { return m_complete; }

private:
    // The device is opened for the first question that sysfs cannot answer.
    const DeviceQuestions &device()
    {
        if (!m_questions)
            m_questions.emplace(m_device);
        return *m_questions;
    }

    QString text(const QString &attribute, quint8 descriptorIndex)
    {
        if (descriptorIndex == 0)
            return {};
        auto answer = m_sysfs.attribute(attribute);
        if (!answer)
            answer = device().text(descriptorIndex);
        return orMissing(answer);
    }

    QString deviceID()
    {
        const UsbConfiguration configuration = activeConfiguration(m_device);
        if (!configuration)
            return orMissing(std::nullopt);
        QString id;
        for (const int interface : printerInterfaceNumbers(*configuration)) {
            const auto known = [&] {
                return m_sysfs.interfaceAttribute(configuration->bConfigurationValue, interface, u"ieee1284_id"_s);
            };
            auto answer = known();
            if (!answer)
                answer = device().deviceID(interface);
            // The kernel's driver may have come to hold the interface in between, and then has asked itself.
            if (!answer)
                answer = known();
            id = orMissing(answer);
            if (!id.isEmpty())
                break;
        }
        return id;
    }

    QString orMissing(const std::optional<QString> &answer)
    {
        m_complete = m_complete && answer.has_value();
        return answer.value_or(QString());
    }

    libusb_device *m_device;
    UsbSysfs m_sysfs;
    std::optional<DeviceQuestions> m_questions;
    bool m_complete = true;
};

} // namespace

quint32 usbLocationID(libusb_device *device)
{
    std::array<quint8, locatedPorts + 1> ports{};
    const int count = libusb_get_port_numbers(device, ports.data(), int(ports.size()));
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
        if (const auto known = m_known.find(device.get()); known != m_known.end()) {
            list.push_back(known->second.device);
            continue;
        }
        Inquiry inquiry(device.get());
        list.push_back(inquiry.describe(descriptor));
        if (inquiry.isComplete()) {
            libusb_device *const key = device.get();
            m_known.emplace(key, Known{std::move(device), list.back()});
        }
    }
    std::ranges::sort(list, {}, &UsbDevice::locationID);
    return list;
}
