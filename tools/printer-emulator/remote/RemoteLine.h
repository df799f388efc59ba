#pragma once

#include "RemoteDevice.h"

#include <chrono>
#include <optional>

/// The line to a host outside this process, in that host's protocol. Failures are `std::runtime_error`.
class RemoteLine
{
public:
    virtual ~RemoteLine() = default;

    /// The printer's interface, with the packet size of this line's speed.
    virtual UsbShape shape() const = 0;

    /// The device stays until it is unplugged.
    virtual void plug(RemoteDevice &device) = 0;
    virtual void unplug() = 0;
    /// False, too, when the host has let go of the device.
    virtual bool isPlugged() const = 0;

    /// Waits until the host says something, at most for `limit`; for ever without one.
    virtual void wait(std::optional<std::chrono::milliseconds> limit) = 0;
    /// Hands the plugged device what the host has asked for meanwhile.
    virtual void serve() = 0;
    /// Keeps for `flush` how a transfer ended.
    virtual void ended(const RemoteDevice::Transfer &transfer, RemoteDevice::End end) = 0;
    virtual void flush() = 0;
};
