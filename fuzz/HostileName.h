#pragma once

#include <QByteArrayView>
#include <QString>

/// The names of networks as somebody else chooses them.
namespace HostileName
{

inline constexpr qsizetype longest = 32; ///< Bytes on the air.

/// As the program reads it.
QString fromTheAir(QByteArrayView bytes);
/// Whether `text` stays on its line and shows all that it holds, from left to right where it is not Arabic or Hebrew.
bool showsAll(const QString &text);

} // namespace HostileName
