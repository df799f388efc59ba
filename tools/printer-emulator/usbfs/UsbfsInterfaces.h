#pragma once

#include "InterfaceBinding.h"
#include "UsbShape.h"
#include "UsbfsIoctl.h"

#include <functional>
#include <vector>

/// The interfaces of a device that is on the bus: who has them, and their alternate settings. Answers are the kernel's:
/// 0 or above, or a negative errno.
class UsbfsInterfaces
{
public:
    explicit UsbfsInterfaces(UsbShape shape);

    /// Everything as it is when the device has just arrived.
    void reset();
    /// The requests that concern interfaces; -ENOTTY for all others.
    int handle(unsigned long request, UMockdevIoctlClient *client);
    /// Claims the interface for the program unless somebody else has it, as a transfer does.
    int claim(int interface, UMockdevIoctlClient *client);
    int claimForEndpoint(quint8 endpoint, UMockdevIoctlClient *client);

    /// Releases the interfaces of programs that have closed the node since; whether there were any.
    bool releaseVanished();

    void setKernelDriver(bool present);
    /// Another program takes the interfaces as soon as no program has them.
    void setHeld(bool held);

    int count() const { return static_cast<int>(m_interfaces.size()); }
    QString driver(int interface) const { return m_interfaces.at(interface).binding.driver(); }
    int alternateSetting(int interface) const { return m_interfaces.at(interface).alternateSetting; }
    /// How many interfaces programs have claimed. The other program of `setHeld` does not count.
    int claims() const;

private:
    struct Interface {
        InterfaceBinding binding;
        GObjectRef<UMockdevIoctlClient> program; ///< Which claimed it last.
        int alternateSetting = 0;

        int claim(UMockdevIoctlClient *client);
    };

    int withInterface(unsigned number, const std::function<int(Interface &)> &action);
    int tellDriver(UMockdevIoctlClient *client);
    int select(UMockdevIoctlClient *client);
    int disconnectAndClaim(UMockdevIoctlClient *client);
    int kernelDriverRequest(UMockdevIoctlClient *client);
    void settleHold();

    UsbShape m_shape;
    std::vector<Interface> m_interfaces;
    bool m_hasKernelDriver = true;
    bool m_held = false;
};
