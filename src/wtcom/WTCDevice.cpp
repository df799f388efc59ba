#include "WTCDevice.h"

#include "Ieee1284DeviceID.h"
#include "untrustedText.h"

#include <QUrl>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace
{

QString firstUsable(const QString &preferred, const QString &otherwise)
{
    return preferred.isEmpty() ? otherwise.trimmed() : preferred;
}

QString encoded(const QString &text)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(text));
}

bool isNamed(UsbDevice device, const QString &URI)
{
    if (deviceFromUsb(device).URI == URI)
        return true;
    device.ieee1284DeviceID.clear();
    return deviceFromUsb(device).URI == URI;
}

} // namespace

WTCDevice deviceFromUsb(const UsbDevice &device)
{
    const Ieee1284DeviceID id(device.ieee1284DeviceID);
    WTCDevice printer;
    const QString model = firstUsable(id.model(), device.product);
    const QString manufacturer = firstUsable(id.manufacturer(), device.manufacturer);
    printer.printerType = visibleText(model);
    printer.manufacturer = visibleText(manufacturer);
    printer.serialNumber = visibleText(device.serialNumber);
    printer.VID = device.vendorID;
    printer.PID = device.productID;
    printer.locationID = device.locationID;
    printer.URI = u"usb://%1/%2?serial=%3"_s.arg(encoded(manufacturer), encoded(model), encoded(device.serialNumber));
    return printer;
}

std::optional<UsbDevice> deviceNamed(const QString &URI, const UsbDeviceList &devices)
{
    const auto found = std::ranges::find_if(devices, [&URI](const UsbDevice &device) { return isNamed(device, URI); });
    return found == devices.end() ? std::nullopt : std::optional(*found);
}
