#pragma once

#include <QByteArrayView>

/// Where everything stands in a command frame and in a reply; sizes and offsets in bytes.
namespace FrameLayout
{
inline constexpr QByteArrayView universalExit{"\x1B%-12345X"};
inline constexpr QByteArrayView enterLanguage{"@PJL ENTER LANGUAGE=ACL\r\n"};

inline constexpr qsizetype headerOffset = universalExit.size() + enterLanguage.size();
inline constexpr qsizetype codeOffset = headerOffset + 2;
inline constexpr qsizetype lengthOffset = headerOffset + 4;
inline constexpr qsizetype zerosOffset = headerOffset + 6;
inline constexpr qsizetype payloadOffset = headerOffset + 16;

inline constexpr quint8 magic[] = {0x00, 0xAC};

inline constexpr qsizetype replyHeaderSize = 16;

// The data of an address reply: three texts, each ended by a zero within its field.
inline constexpr qsizetype ipv4Offset = 0;
inline constexpr qsizetype ipv4Size = 16;
inline constexpr qsizetype ipv6Offset = 48;
inline constexpr qsizetype secondIpv6Offset = 112;
inline constexpr qsizetype ipv6Size = 64;
inline constexpr qsizetype addressDataSize = secondIpv6Offset + ipv6Size;
} // namespace FrameLayout
