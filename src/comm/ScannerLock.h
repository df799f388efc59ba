#pragma once

#include <QStringList>

/// The lock files by which a scanner driver says that it is using the printer: the catalogue's "scaner_locker" entries.
namespace ScannerLock
{

/// The paths in the configured catalogue; none without one.
QStringList configuredPaths();

/// Whether another process holds one of the locks (flock(2)). A file that does not exist or may not be read holds
/// nothing. The descriptors stay open on purpose: a driver that watches its lock file must not see it closed.
bool isHeld(const QStringList &paths);

} // namespace ScannerLock
