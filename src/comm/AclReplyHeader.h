#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

/// Reads the header of a printer's reply. Numbers are big-endian.
///
///     0       2              4        6                 8             16
///     +-------+--------------+--------+-----------------+-------------+
///     | 00 AC | echoed       | result | length of the   | not used    |
///     |       | command      |        | data to follow  |             |
///     +-------+--------------+--------+-----------------+-------------+
///
/// A field that a cut header does not hold reads as 0.
class AclReplyHeader
{
public:
    /// The bytes that tell command and result.
    static constexpr qsizetype leastSize = 6;

    explicit AclReplyHeader(const QByteArray &bytes)
        : m_bytes(bytes)
    {
    }

    /// Whether it is as long as a printer's reply header is.
    bool isWhole() const;
    quint16 command() const { return number(2); }
    quint16 result() const { return number(4); }
    quint16 dataLength() const { return number(6); }
    /// The sum of the two bytes of the length field: the reply to an address query states its length so.
    quint16 addedLengthBytes() const;

private:
    quint8 byte(qsizetype offset) const;
    quint16 number(qsizetype offset) const;

    QByteArray m_bytes;
};

/// A reply header for the log, by its fields; its other bytes are left out. Absent for an absent one.
std::optional<QString> describeReplyHeader(const std::optional<QByteArray> &header);
/// Reply data for the log, by its length alone: a printer may send back what it was told. Absent for absent data.
std::optional<QString> describeReplyData(const std::optional<QByteArray> &data);
