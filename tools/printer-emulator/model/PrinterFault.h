#pragma once

#include <QByteArray>
#include <chrono>
#include <optional>
#include <vector>

/// One way in which the printer misbehaves on a command. The fields combine; those that are left out change nothing.
/// Offsets and counts are in bytes: on the way out of the frame with its envelope, on the way in of the reply.
struct PrinterFault {
    using Duration = std::chrono::milliseconds;

    quint16 command = 0;
    int occurrence = 0; ///< 1 for the first time the command comes, 2 for the second, ...; 0 for every time.

    // The frame on its way to the printer.
    Duration acceptDelay{0};               ///< Until the printer takes the first byte.
    bool stallOut = false;                 ///< The OUT endpoint stalls; nothing of the frame arrives.
    std::optional<qsizetype> acceptOnly{}; ///< Takes this many bytes of the frame and no more.
    std::optional<qsizetype> unplugOut{};  ///< Leaves the bus after this many bytes of the frame.

    // What the reply says.
    bool silent = false;                  ///< No reply at all.
    std::optional<quint16> echo{};        ///< The command code in the reply header.
    std::optional<quint16> result{};      ///< The result code.
    std::optional<quint16> lengthField{}; ///< Header bytes 6 and 7; otherwise the length of the data.
    std::optional<QByteArray> data{};     ///< The reply data, with the length field that belongs to it.
    bool noData = false;                  ///< The header announces its data, and none follows.

    // How the reply travels.
    Duration delay{0};                   ///< Before the first byte, on top of the command's own time.
    QByteArray garbage{};                ///< Sent ahead of the reply.
    QByteArray trailingGarbage{};        ///< Sent behind the reply, in the same transfer.
    std::optional<qsizetype> cutAt{};    ///< Only this many bytes of the reply are sent, then silence.
    std::vector<qsizetype> slices{};     ///< Sizes of the transfers, the rest in one; 0 is a zero-length packet.
    std::optional<quint32> sliceSeed{};  ///< Transfers of random sizes, the same ones for the same seed.
    Duration sliceDelay{0};              ///< Between two transfers of the reply.
    bool stallIn = false;                ///< The IN endpoint stalls in place of the reply, or where `cutAt` ends it.
    std::optional<qsizetype> unplugIn{}; ///< Leaves the bus after this many bytes of the reply.
};
