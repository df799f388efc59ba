#include "UsbfsBed.h"

#include "UsbfsBus.h"

#include <utility>

UsbfsBed::UsbfsBed(TimePort &time)
    : m_bus(std::make_unique<UsbfsBus>(time))
{
}

UsbfsBed::~UsbfsBed() = default;

int UsbfsBed::addPrinter(PrinterModel model, UsbShape shape)
{
    return m_bus->add(std::move(model), std::move(shape));
}

void UsbfsBed::plug(int printer)
{
    m_bus->plug(printer);
}

void UsbfsBed::unplug(int printer)
{
    m_bus->unplug(printer);
}

void UsbfsBed::replug(int printer)
{
    unplug(printer);
    plug(printer);
}

bool UsbfsBed::isPlugged(int printer) const
{
    return m_bus->of<bool>(printer, &UsbfsDevice::isPlugged);
}

void UsbfsBed::setScript(PrinterScript script, int printer)
{
    m_bus->setScript(printer, std::move(script));
}

void UsbfsBed::replacePrinter(PrinterModel model, int printer)
{
    unplug(printer);
    release(printer);
    permit(printer);
    m_bus->with(printer, [&model](UsbfsDevice &device) { device.model() = std::move(model); });
}

PrinterRecord UsbfsBed::record(int printer) const
{
    return m_bus->of<PrinterRecord>(printer, [](const UsbfsDevice &device) { return device.model().record(); });
}

void UsbfsBed::onFrame(std::function<void(int printer, const ReceivedFrame &frame)> listener)
{
    m_bus->setListener(std::move(listener));
}

QString UsbfsBed::boundDriver(int printer, int interface) const
{
    return m_bus->of<QString>(printer, [interface](const UsbfsDevice &device) {
        return device.isPlugged() ? device.interfaces().driver(interface) : QString();
    });
}

void UsbfsBed::setKernelDriver(bool present, int printer)
{
    m_bus->with(printer, [present](UsbfsDevice &device) { device.setKernelDriver(present); });
}

int UsbfsBed::deviceIDQuestions(int printer) const
{
    return m_bus->of<int>(printer, &UsbfsDevice::deviceIDQuestions);
}

int UsbfsBed::alternateSetting(int printer, int interface) const
{
    return m_bus->of<int>(
        printer, [interface](const UsbfsDevice &device) { return device.interfaces().alternateSetting(interface); });
}

void UsbfsBed::hold(int printer)
{
    m_bus->with(printer, [](UsbfsDevice &device) { device.setHeld(true); });
}

qint64 UsbfsBed::holdByProcess(int printer)
{
    return m_bus->holdByProcess(printer);
}

void UsbfsBed::release(int printer)
{
    m_bus->release(printer);
}

void UsbfsBed::deny(int printer)
{
    m_bus->with(printer, [](UsbfsDevice &device) { device.setPermitted(false); });
}

void UsbfsBed::permit(int printer)
{
    m_bus->with(printer, [](UsbfsDevice &device) { device.setPermitted(true); });
}

QString UsbfsBed::nodePath(int printer) const
{
    return m_bus->of<QString>(printer, [](const UsbfsDevice &device) {
        return device.isPlugged() ? UsbfsSysfs::nodePath(device.deviceNumber()) : QString();
    });
}

QString UsbfsBed::sysfsPath(int printer) const
{
    return m_bus->of<QString>(printer, [](const UsbfsDevice &device) {
        return QStringLiteral("/sys/bus/usb/devices/") + device.sysfs().name();
    });
}

quint32 UsbfsBed::locationID(int printer) const
{
    return m_bus->of<quint32>(printer, [](const UsbfsDevice &device) { return device.sysfs().locationID(); });
}

int UsbfsBed::claims(int printer) const
{
    return m_bus->of<int>(printer, [](const UsbfsDevice &device) { return device.interfaces().claims(); });
}

bool UsbfsBed::busy() const
{
    return m_bus->busy();
}
