#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

/// The data of an address reply: three texts, each ended by a zero byte or by its field.
///
///     0        16          48         112         176
///     +--------+-----------+----------+-----------+
///     | IPv4   |           | IPv6     | unstatus  |
///     +--------+-----------+----------+-----------+
///
/// "unstatus" is a second IPv6 address. Printers leave fields out from the end.
struct AddressField {
    qsizetype offset;
    qsizetype size;
};

inline constexpr AddressField ipv4Field{0, 16};
inline constexpr AddressField ipv6Field{48, 64};
inline constexpr AddressField unstatusField{112, 64};

/// Shorter replies hold no address.
inline constexpr qsizetype leastAddressData = 16;

/// What stands in the fields. Empty: the reply is too short to be asked for the field. Absent: the field runs past the
/// reply's end or holds no UTF-8.
struct AddressCandidates {
    std::optional<QString> ipv4;
    std::optional<QString> ipv6;
    std::optional<QString> unstatus;
};

/// Logs each field it reads.
AddressCandidates addressCandidates(const QByteArray &data);

/// The first candidate that is an address of its kind: IPv4 before IPv6 before "unstatus".
std::optional<QString> chooseAddress(const AddressCandidates &candidates);

/// Whether the whole text is an address in dotted decimal. 0.0.0.0 is one.
bool isIPv4Address(const QString &text);
/// Whether the whole text is an IPv6 address, also with an embedded IPv4 address; without a zone.
bool isIPv6Address(const QString &text);
