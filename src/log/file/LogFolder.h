#pragma once

#include "FileError.h"

#include <QStringList>

/// What the log files ask of the process and of their folder.
namespace LogFolder
{

/// The name of the running executable.
QString processName();

/// "Logs" and the process's name in the folder of the user's state: $XDG_STATE_HOME, else ~/.local/state. Without a
/// home in the temporary folder, where "Logs" is made for the user alone, under another name when somebody else might
/// write to it.
QString defaultPath();

/// Makes the folder and those above it that are missing, all for the user alone.
FileError create(const QString &path);

/// The names in the folder, in no order; none when it cannot be read.
QStringList entries(const QString &path);

/// Creates the file with these contents, in one step where the file system has hard links, for the user alone. Never
/// touches a file that exists: `fileExists`.
FileError createFile(const QString &path, const QByteArray &contents);

} // namespace LogFolder
