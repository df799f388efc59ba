#pragma once

#include "Agenda.h"
#include "RemoteLine.h"

#include <functional>
#include <optional>

/// One emulated printer for a real kernel, with what its script lets happen on the bus: it can be plugged and
/// unplugged; who may open it is the kernel's business here. Runs on the thread that calls `run`, in real time.
class RemoteBus
{
public:
    /// The line outlives the bus.
    RemoteBus(PrinterModel model, RemoteLine &line, std::function<void(const ReceivedFrame &)> received);

    /// Until the host lets go of the printer, or it is unplugged for good.
    void run();

private:
    using Instant = Agenda::Instant;

    void apply(BusEvent::Action action);
    /// As the script has it: the printer leaves at once, or transfers fail first.
    void pullPlug();
    void leave();
    void moveOn();
    std::optional<std::chrono::milliseconds> untilNextDue() const;

    RemoteLine &m_line;
    RemoteDevice m_device;
    Agenda m_agenda;
};
