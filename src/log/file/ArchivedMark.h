#pragma once

#include <QString>

/// The mark on a log file that is closed for good: the extended attribute `user.quillmark.log.archived` with the single
/// byte 0x01. A mark that the file system does not take (no attributes, full, not permitted) is remembered in memory by
/// the file's path. Symbolic links are not followed. Any thread.
namespace ArchivedMark
{

/// A mark of any other value counts, and is rewritten.
bool isOn(const QString &path);
void putOn(const QString &path);
void takeOff(const QString &path);
/// A new file has taken the path: what was remembered of an older one is void.
void forget(const QString &path);
/// The file was renamed: what was remembered of the old path now counts for the new one.
void follow(const QString &oldPath, const QString &newPath);

} // namespace ArchivedMark
