#pragma once

#include "LibusbPort.h"
#include "UsbfsBed.h"
#include "VirtualTime.h"

#include <future>
#include <utility>

/// What a failed test prints of a result that should have been one.
template <typename Value>
QByteArray whyNot(const WTResult<Value> &result)
{
    return result ? QByteArray() : result.error().message.toUtf8();
}

/// An emulated USB bus, the program's own port on it, and a clock for both; made and destroyed in the order that
/// libusb needs.
struct UsbTestBed {
    VirtualTime time;
    UsbfsBed bus{time};
    LibusbPort port{time};

    /// Lets everything go on until `done`. @return whether it came to be within the time a test may take.
    bool runUntil(const std::function<bool()> &done)
    {
        return time.runUntil(done, [this] { return bus.busy(); });
    }

    /// Runs `work`, which may block on the bus or on the clock, on a thread of its own.
    template <typename Work>
    auto await(Work work) -> decltype(work())
    {
        auto result = std::async(std::launch::async, std::move(work));
        const auto isReady = [&] { return result.wait_for(std::chrono::seconds(0)) == std::future_status::ready; };
        if (!runUntil(isReady))
            qFatal("The work on the bus hangs.");
        return result.get();
    }
};
