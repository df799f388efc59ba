#pragma once

#include "ControlPipe.h"
#include "PrinterPipes.h"
#include "UsbShape.h"

#include <functional>
#include <list>
#include <optional>

/// One emulated printer for a host that asks by messages: the host begins transfers and later hears how each one ended.
/// Has no clock, and knows no protocol.
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
        quint64 identity = 0; ///< Chosen by the host.
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
    /// Does what a newly selected setting does: a frame under way is cut off, halts are cleared.
    void setInterface();
    void begin(Transfer transfer) { m_pending.push_back(std::move(transfer)); }
    /// Withdraws a transfer for the host, so that it is not reported as ended. Returns it; absent when it has ended
    /// already.
    std::optional<Transfer> giveUp(quint64 identity);

    /// Does what is due; false when the printer leaves the bus.
    bool pump(Instant now);
    std::optional<Instant> nextDue(Instant now) const;

    /// The plug is being pulled: all transfers under way end like this, and all that come until the printer has left.
    void failAll(End end);
    bool isFailing() const { return m_failure.has_value(); }
    /// The host resets the device: forgets all that was under way.
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
