#pragma once

#include <QStringList>

/// The lock files that a scanner driver locks while it uses the printer. The catalogue names them as "scaner_locker".
namespace ScannerLock
{

/// The paths that the catalogue names; none if there is no catalogue.
QStringList configuredPaths();

/// Whether another process holds one of the locks (flock(2)). A file that does not exist, may not be read or is no
/// regular file counts as not locked. Never waits. Always from one and the same thread. A lock file that was opened
/// stays open, on purpose, while it is at its path: a driver that watches its lock file must not see it closed.
bool isHeld(const QStringList &paths);

} // namespace ScannerLock
