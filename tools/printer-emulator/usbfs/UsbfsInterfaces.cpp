#include "UsbfsInterfaces.h"

#include <algorithm>
#include <cerrno>
#include <linux/usbdevice_fs.h>
#include <sys/ioctl.h>
#include <utility>

namespace
{
constexpr quint8 printerClass = 7;

/// Stands for the other program that holds the interfaces.
constexpr char otherProgram = 0;
} // namespace

int UsbfsInterfaces::Interface::claim(UMockdevIoctlClient *client)
{
    const int claimed = binding.claim(client);
    if (claimed == 0)
        program = share(client);
    return claimed;
}

UsbfsInterfaces::UsbfsInterfaces(UsbShape shape)
    : m_shape(std::move(shape))
{
    reset();
}

void UsbfsInterfaces::reset()
{
    m_interfaces.clear();
    for (const UsbShape::Interface &settings : m_shape.interfaces) {
        const bool isPrinter = settings.front().interfaceClass == printerClass;
        m_interfaces.push_back({InterfaceBinding(isPrinter && m_hasKernelDriver), nullptr, 0});
    }
    settleHold();
}

int UsbfsInterfaces::handle(unsigned long request, UMockdevIoctlClient *client)
{
    switch (request) {
    case USBDEVFS_GETDRIVER:
        return tellDriver(client);
    case USBDEVFS_CLAIMINTERFACE:
        return claim(static_cast<int>(*IoctlArgument<unsigned>(client)), client);
    case USBDEVFS_RELEASEINTERFACE: {
        const int released = withInterface(*IoctlArgument<unsigned>(client),
                                           [&](Interface &interface) { return interface.binding.release(client); });
        settleHold();
        return released;
    }
    case USBDEVFS_SETINTERFACE:
        return select(client);
    case USBDEVFS_DISCONNECT_CLAIM:
        return disconnectAndClaim(client);
    case USBDEVFS_IOCTL:
        return kernelDriverRequest(client);
    default:
        return -ENOTTY;
    }
}

int UsbfsInterfaces::claim(int interface, UMockdevIoctlClient *client)
{
    return withInterface(static_cast<unsigned>(interface), [client](Interface &found) { return found.claim(client); });
}

int UsbfsInterfaces::claimForEndpoint(quint8 endpoint, UMockdevIoctlClient *client)
{
    const int number = ((endpoint & 0x7F) - 1) / 2;
    if (number >= count())
        return -ENOENT;
    const bool isIn = endpoint & 0x80;
    if (isIn && !m_shape.interfaces[number][alternateSetting(number)].bulkIn)
        return -ENOENT;
    return claim(number, client);
}

int UsbfsInterfaces::tellDriver(UMockdevIoctlClient *client)
{
    const IoctlArgument<usbdevfs_getdriver> argument(client);
    return withInterface(argument->interface, [&](const Interface &interface) {
        const QByteArray driver = interface.binding.driver().toLatin1();
        qstrncpy(argument->driver, driver.constData(), sizeof argument->driver);
        return driver.isEmpty() ? -ENODATA : 0;
    });
}

int UsbfsInterfaces::select(UMockdevIoctlClient *client)
{
    const IoctlArgument<usbdevfs_setinterface> argument(client);
    return withInterface(argument->interface, [&](Interface &interface) {
        if (argument->altsetting >= m_shape.interfaces[argument->interface].size())
            return -EINVAL;
        const int claimed = interface.claim(client);
        if (claimed == 0)
            interface.alternateSetting = static_cast<int>(argument->altsetting);
        return claimed;
    });
}

int UsbfsInterfaces::disconnectAndClaim(UMockdevIoctlClient *client)
{
    const IoctlArgument<usbdevfs_disconnect_claim> argument(client);
    const QString named = QString::fromLatin1(
        argument->driver, static_cast<qsizetype>(qstrnlen(argument->driver, sizeof argument->driver)));
    const bool except = argument->flags & USBDEVFS_DISCONNECT_CLAIM_EXCEPT_DRIVER;
    const bool only = argument->flags & USBDEVFS_DISCONNECT_CLAIM_IF_DRIVER;
    return withInterface(argument->interface, [&](Interface &interface) {
        const int claimed =
            interface.binding.disconnectAndClaim(client, except ? named : QString(), only ? named : QString());
        return claimed < 0 ? claimed : interface.claim(client);
    });
}

int UsbfsInterfaces::kernelDriverRequest(UMockdevIoctlClient *client)
{
    const IoctlArgument<usbdevfs_ioctl> argument(client);
    return withInterface(static_cast<unsigned>(argument->ifno), [&](Interface &interface) {
        switch (static_cast<unsigned>(argument->ioctl_code)) {
        case USBDEVFS_DISCONNECT:
            return interface.binding.disconnect();
        case USBDEVFS_CONNECT:
            return interface.binding.connect();
        default:
            return -ENOTTY;
        }
    });
}

int UsbfsInterfaces::withInterface(unsigned number, const std::function<int(Interface &)> &action)
{
    return number < m_interfaces.size() ? action(m_interfaces[number]) : -EINVAL;
}

int UsbfsInterfaces::claims() const
{
    return static_cast<int>(std::ranges::count_if(m_interfaces, [](const Interface &interface) {
        return interface.binding.isClaimed() && !interface.binding.isClaimedBy(&otherProgram);
    }));
}

bool UsbfsInterfaces::releaseVanished()
{
    bool released = false;
    for (Interface &interface : m_interfaces) {
        if (interface.program && !umockdev_ioctl_client_get_connected(interface.program.get()))
            released |= interface.binding.release(interface.program.get()) == 0;
    }
    if (released)
        settleHold();
    return released;
}

void UsbfsInterfaces::setKernelDriver(bool present)
{
    m_hasKernelDriver = present;
    for (Interface &interface : m_interfaces)
        interface.binding.setKernelDriver(present);
}

void UsbfsInterfaces::setHeld(bool held)
{
    m_held = held;
    settleHold();
}

void UsbfsInterfaces::settleHold()
{
    for (Interface &interface : m_interfaces) {
        InterfaceBinding &binding = interface.binding;
        if (m_held && !binding.isClaimed()) {
            binding.disconnect();
            binding.claim(&otherProgram);
        } else if (!m_held && binding.release(&otherProgram) == 0) {
            binding.connect();
        }
    }
}
