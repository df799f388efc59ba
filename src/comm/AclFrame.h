#pragma once

#include <QByteArray>
#include <QtEndian>
#include <array>

/// The bytes of ACL command frames. Numbers are big-endian, the checksum alone is little-endian.
///
/// Short frame, without a checksum:
///
///     0       2         4        6               16
///     +-------+---------+--------+---------------+-----------+
///     | 00 AC | command | length | zero          | payload   |
///     +-------+---------+--------+---------------+-----------+
///
/// Long frame; the checksum covers everything before it:
///
///     0       2         4                8       12          12 + n
///     +-------+---------+----------------+-------+-----------+--------+
///     | 00 AC | command | length         | zero  | payload   | CRC-16 |
///     +-------+---------+----------------+-------+-----------+--------+
namespace AclFrame
{

inline constexpr quint16 magic = 0x00AC;

struct ShortHeader {
    quint16_be start{magic};
    quint16_be command{0};
    quint16_be payloadLength{0};
    std::array<quint8, 10> zero{};
};
static_assert(sizeof(ShortHeader) == 16);

struct LongHeader {
    quint16_be start{magic};
    quint16_be command{0};
    quint32_be payloadLength{0};
    std::array<quint8, 4> zero{};
};
static_assert(sizeof(LongHeader) == 12);

using Checksum = quint16_le;

template <typename Part>
QByteArray bytesOf(const Part &part)
{
    static_assert(std::is_trivially_copyable_v<Part>);
    return {reinterpret_cast<const char *>(&part), sizeof(Part)};
}

} // namespace AclFrame
