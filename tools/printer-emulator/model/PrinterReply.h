#pragma once

#include "PrinterFault.h"

#include <QByteArray>
#include <vector>

/// One IN transfer of a reply.
struct InTransfer {
    enum class Kind {
        Data,   ///< `bytes`, ended by a short or a zero-length packet.
        Stall,  ///< The endpoint halts.
        Unplug, ///< The printer leaves the bus.
    };
    Kind kind = Kind::Data;
    QByteArray bytes{};
    /// Time since the transfer before it; for the first one, since the frame arrived.
    std::chrono::milliseconds delay{0};
};

/// The reply of a printer without a fault.
struct PrinterReply {
    quint16 command = 0;
    quint16 result = 0;
    QByteArray data{};
    std::chrono::milliseconds time{0}; ///< How long the printer works on the command.

    /// The reply as it travels under this fault.
    std::vector<InTransfer> transfers(const PrinterFault &fault) const;

private:
    QByteArray bytes(const PrinterFault &fault) const;
};
