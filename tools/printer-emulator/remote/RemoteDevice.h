#pragma once

#include "ControlPipe.h"
#include "PrinterPipes.h"
#include "UsbShape.h"

#include <functional>
#include <list>
#include <optional>

/// One emulated printer as a host sees it that asks from afar: transfers begin, and later they end. Knows time only as
/// a value, and no protocol.
class RemoteDevice final : private PrinterPipes::Listener
{
public:
    using Instant = PrinterPipes::Instant;

    /// How a transfer ends.
    enum class End {
        Success,
        Stall,
        Overflow, ///< A packet did not fit.
        Error,    ///< The transaction failed on the wire.
    };

    struct Transfer {
        quint64 identity = 0; ///< The host's own.
        bool isIn = false;
        qsizetype length = 0; ///< Most bytes that an IN transfer takes.
        QByteArray bytes;     ///< To send, or received so far.
        OutProgress out{};
    };
    struct ControlEnd {
        End end = End::Success;
        QByteArray bytes{};
    };
    struct Listener {
        std::function<void(const ReceivedFrame &)> received;
        std::function<void(const BusEvent &)> scheduled;
        std::function<void(const Transfer &, End)> ended;
    };

    RemoteDevice(PrinterModel model, UsbShape shape, Listener listener);

    const PrinterModel &model() const { return m_pipes.model(); }
    const UsbShape &shape() const { return m_shape; }

    ControlEnd control(const ControlPipe::Setup &setup);
    /// Whoever takes the interface over begins anew.
    void setInterface();
    void begin(Transfer transfer) { m_pending.push_back(std::move(transfer)); }
    /// The host gives a transfer up, and it does not end any more. Returns it; absent when it has ended already.
    std::optional<Transfer> giveUp(quint64 identity);

    /// Moves whatever is due. False: the printer leaves the bus.
    bool pump(Instant now);
    std::optional<Instant> nextDue(Instant now) const;

    /// The plug is being pulled: all transfers under way, and all to come until it has left, end like this.
    void failAll(End end);
    bool isFailing() const { return m_failure.has_value(); }
    /// The host begins anew: forgets all that was under way.
    void reset();
    /// The printer has left the bus.
    void unplugged();

private:
    using Transfers = std::list<Transfer>;

    void received(const ReceivedFrame &frame) override { m_listener.received(frame); }
    void scheduled(const BusEvent &event) override { m_listener.scheduled(event); }

    std::optional<QByteArray> controlAnswer(const ControlPipe::Setup &setup);
    bool pump(bool in, Instant now);
    void complete(Transfers::iterator transfer, End end);

    const UsbShape m_shape;
    const Listener m_listener;
    PrinterPipes m_pipes;
    Transfers m_pending;
    std::optional<End> m_failure;
};
