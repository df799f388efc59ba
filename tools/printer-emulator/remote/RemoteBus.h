#pragma once

#include "Agenda.h"
#include "RemoteLine.h"

#include <functional>
#include <optional>

/// One emulated printer for a real kernel, with the bus events of its script. It can be plugged and unplugged; who may
/// open it, the kernel decides. Runs on the thread that calls `run`, in real time.
class RemoteBus
{
public:
    /// The line outlives the bus.
    RemoteBus(PrinterModel model, RemoteLine &line, std::function<void(const ReceivedFrame &)> received);

    /// Returns when the host has let go of the printer, or when the printer is unplugged for good.
    void run();

private:
    using Instant = Agenda::Instant;

    void apply(BusEvent::Action action);
    /// Unplugs the printer as the script says: at once, or with failing transfers first.
    void pullPlug();
    void leave();
    void moveOn();
    /// @param moved when the printer last began to do what was due; what fell due since is still to be done.
    std::optional<std::chrono::milliseconds> untilNextDue(Instant moved) const;

    RemoteLine &m_line;
    RemoteDevice m_device;
    Agenda m_agenda;
};
