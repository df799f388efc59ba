#include "PrinterInterface.h"

#include <algorithm>
#include <span>

namespace
{

enum Protocol { Unidirectional = 1, Bidirectional = 2 };
constexpr int printerSubclass = 1;
constexpr int packetSizeMask = 0x7FF;

std::span<const libusb_interface> interfacesOf(const libusb_config_descriptor &configuration)
{
    return {configuration.interface, configuration.bNumInterfaces};
}

std::span<const libusb_interface_descriptor> settingsOf(const libusb_interface &interface)
{
    return {interface.altsetting, static_cast<std::size_t>(interface.num_altsetting)};
}

bool isPrinter(const libusb_interface_descriptor &setting)
{
    return setting.bInterfaceClass == LIBUSB_CLASS_PRINTER && setting.bInterfaceSubClass == printerSubclass;
}

const libusb_endpoint_descriptor *bulkEndpoint(const libusb_interface_descriptor &setting, int direction)
{
    const std::span endpoints{setting.endpoint, setting.bNumEndpoints};
    const auto found = std::ranges::find_if(endpoints, [direction](const libusb_endpoint_descriptor &endpoint) {
        return (endpoint.bmAttributes & LIBUSB_TRANSFER_TYPE_MASK) == LIBUSB_TRANSFER_TYPE_BULK &&
               (endpoint.bEndpointAddress & LIBUSB_ENDPOINT_DIR_MASK) == direction;
    });
    return found == endpoints.end() ? nullptr : &*found;
}

std::optional<PrinterInterface> chooseOfProtocol(const libusb_config_descriptor &configuration, int protocol)
{
    for (const libusb_interface &interface : interfacesOf(configuration)) {
        for (const libusb_interface_descriptor &setting : settingsOf(interface)) {
            const auto *out = bulkEndpoint(setting, LIBUSB_ENDPOINT_OUT);
            const auto *in = bulkEndpoint(setting, LIBUSB_ENDPOINT_IN);
            if (isPrinter(setting) && setting.bInterfaceProtocol == protocol && out && in)
                return PrinterInterface{setting.bInterfaceNumber,     setting.bAlternateSetting,
                                        interface.num_altsetting > 1, out->bEndpointAddress,
                                        in->bEndpointAddress,         in->wMaxPacketSize & packetSizeMask};
        }
    }
    return std::nullopt;
}

} // namespace

std::optional<PrinterInterface> choosePrinterInterface(const libusb_config_descriptor &configuration)
{
    for (const int protocol : {Bidirectional, Unidirectional}) {
        if (const auto chosen = chooseOfProtocol(configuration, protocol))
            return chosen;
    }
    return std::nullopt;
}
