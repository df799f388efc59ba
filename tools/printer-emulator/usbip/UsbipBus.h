#pragma once

#include "Agenda.h"
#include "UsbipDevice.h"
#include "VirtualHostController.h"

#include <functional>
#include <optional>

/// One emulated printer that a real kernel sees, with what its script lets happen on the bus: it can be plugged and
/// unplugged; who may open it is the kernel's business here. Runs on the thread that calls `run`, in real time.
class UsbipBus
{
public:
    UsbipBus(PrinterModel model, std::function<void(const ReceivedFrame &)> received);

    /// Until the kernel lets go of the printer, or it is unplugged for good.
    void run();

private:
    using Instant = Agenda::Instant;

    void apply(BusEvent::Action action);
    /// As the script has it: the printer leaves at once, or transfers fail first.
    void pullPlug();
    void leave();
    void serveDueRequests();
    std::optional<std::chrono::milliseconds> untilNextDue() const;

    UsbipDevice m_device;
    Agenda m_agenda;
    std::optional<VirtualHostController> m_host; ///< While it is plugged.
};
