#pragma once

#include <QByteArrayView>

/// The envelope that switches a printer's interpreter to the ACL language for one frame:
///
///     0                    9                              34           34 or 35
///     +--------------------+------------------------------+------------+-----------+--------------------+
///     | ESC "%-12345X"     | "@PJL ENTER LANGUAGE=ACL" CRLF | encryption | ACL frame | ESC "%-12345X"     |
///     +--------------------+------------------------------+------------+-----------+--------------------+
///
/// The encryption byte is left out when it is `noEncryption`.
namespace PjlEnvelope
{

inline constexpr QByteArrayView universalExitLanguage{"\x1B%-12345X"};
inline constexpr QByteArrayView enterAclLanguage{"@PJL ENTER LANGUAGE=ACL\r\n"};
inline constexpr quint8 noEncryption = 255;

static_assert(universalExitLanguage.size() == 9);
static_assert(enterAclLanguage.size() == 25);

} // namespace PjlEnvelope
