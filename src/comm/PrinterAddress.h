#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

/// The data of an address reply: three texts, each of which ends with a zero byte or at the end of its field.
///
///     0        16          48         112         176
///     +--------+-----------+----------+-----------+
///     | IPv4   |           | IPv6     | unstatus  |
///     +--------+-----------+----------+-----------+
///
/// "unstatus" is a second IPv6 address. A printer may leave out the last fields.
struct AddressField {
    qsizetype offset;
    qsizetype size;
};

inline constexpr AddressField ipv4Field{0, 16};
inline constexpr AddressField ipv6Field{48, 64};
inline constexpr AddressField unstatusField{112, 64};

/// A reply with less data holds no address.
inline constexpr qsizetype leastAddressData = 16;

/// The texts of the fields, hidden characters as their numbers (`visibleText`). A text is empty when the reply is too
/// short for its field to be read at all, and absent when the field runs past the end of the reply or is not UTF-8.
struct AddressCandidates {
    std::optional<QString> ipv4;
    std::optional<QString> ipv6;
    std::optional<QString> unstatus;
};

/// Logs each field it reads.
AddressCandidates addressCandidates(const QByteArray &data);

/// The first of the three, in the order IPv4, IPv6, "unstatus", that is a valid address of its kind.
std::optional<QString> chooseAddress(const AddressCandidates &candidates);

/// Whether the whole text is an address in dotted decimal. 0.0.0.0 is one.
bool isIPv4Address(const QString &text);
/// Whether the whole text is an IPv6 address. It may end with an IPv4 address, but a zone is not accepted.
bool isIPv6Address(const QString &text);
