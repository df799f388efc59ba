#pragma once

#include "WTError.h"

#include <QByteArray>
#include <QString>

/// The payload that tells a printer which network to join, all text UTF-8:
///
///     0              33    34             65                208
///     +--------------+-----+--------------+-----------------+
///     | network name | 05  | password     | zero            |
///     +--------------+-----+--------------+-----------------+
///
/// The name is cut to 32 bytes and always ends with a zero byte; a password of 31 bytes fills its field to the end.
class WiFiConfigurationPayload
{
public:
    static constexpr qsizetype nameLimit = 32;
    static constexpr qsizetype nameSize = 33;
    static constexpr char mark = 5;
    static constexpr qsizetype passwordLimit = 31;
    static constexpr qsizetype size = 208;

    /// Refused when name or password cannot be sent (`isSendable`), or when the password has more than `passwordLimit`
    /// bytes, since a cut password would never work. The error holds neither of the two.
    static WTResult<QByteArray> encode(const QString &ssid, const QString &password);
};
