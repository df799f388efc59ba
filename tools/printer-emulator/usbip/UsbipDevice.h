#pragma once

#include "PrinterPipes.h"
#include "UsbShape.h"
#include "UsbipMessages.h"

#include <functional>
#include <list>
#include <optional>

/// One emulated printer at the far side of USB/IP: transfers of a real kernel in, answers out. Knows time only as a
/// value, and no socket.
class UsbipDevice final : private PrinterPipes::Listener
{
public:
    using Instant = PrinterPipes::Instant;

    struct Listener {
        std::function<void(const ReceivedFrame &)> received;
        std::function<void(const BusEvent &)> scheduled;
    };

    UsbipDevice(PrinterModel model, Listener listener);

    const PrinterModel &model() const { return m_pipes.model(); }

    /// `data` are the bytes behind the request's header.
    void handle(const UsbipMessages::Request &request, const QByteArray &data);
    /// Moves whatever is due. False: the printer leaves the bus.
    bool pump(Instant now);
    std::optional<Instant> nextDue(Instant now) const;
    /// What there is to send to the host.
    QByteArray takeAnswers() { return std::exchange(m_answers, {}); }
    /// The plug is being pulled: all transfers under way, and all to come until `reset`, end with this negative errno.
    void failAll(int status);
    bool isFailing() const { return m_failure != 0; }
    /// The device has left: forgets all that was under way.
    void reset();

private:
    struct Transfer {
        UsbipMessages::Request request;
        QByteArray bytes; ///< To send, or received so far.
        OutProgress out{};
    };
    using Transfers = std::list<Transfer>;

    void received(const ReceivedFrame &frame) override { m_listener.received(frame); }
    void scheduled(const BusEvent &event) override { m_listener.scheduled(event); }

    void control(const UsbipMessages::Request &request);
    std::optional<QByteArray> controlAnswer(const UsbipMessages::Request &request);
    bool pump(bool in, Instant now);
    void complete(Transfers::iterator transfer, int status);

    const UsbShape m_shape;
    const Listener m_listener;
    PrinterPipes m_pipes;
    Transfers m_pending;
    QByteArray m_answers;
    int m_failure = 0;
};
