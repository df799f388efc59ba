#include "LogFolder.h"

#include "FileDescriptor.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr mode_t userOnlyFolder = 0700;

/// The folder in an environment variable; empty unless it is an absolute path.
QString folderFromEnvironment(const char *variable)
{
    QString folder = qEnvironmentVariable(variable);
    return QDir::isAbsolutePath(folder) ? folder : QString();
}

/// Empty without a home.
QString stateFolder()
{
    if (QString folder = folderFromEnvironment("XDG_STATE_HOME"); !folder.isEmpty())
        return folder;
    if (const QString home = folderFromEnvironment("HOME"); !home.isEmpty())
        return home + u"/.local/state"_s;
    return {};
}

/// Whether the path is a folder itself, not a link to one, that belongs to the user and that nobody else may write to.
bool isOursAlone(const QString &path)
{
    struct stat status {
    };
    return lstat(QFile::encodeName(path), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == geteuid() &&
           (status.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

/// "Logs" in the temporary folder. Others may write there as well and may have made it beforehand, to read the log or
/// to lead it elsewhere: the process then gets a new folder, which bears a name that nobody can know ahead.
QString temporaryLogs()
{
    QString usual = QDir::tempPath() + u"/Logs"_s;
    mkdir(QFile::encodeName(usual), userOnlyFolder);
    if (isOursAlone(usual))
        return usual;
    static const auto *const own = new QString([] {
        QByteArray name = QFile::encodeName(QDir::tempPath() + u"/Logs.XXXXXX"_s);
        return mkdtemp(name.data()) ? QFile::decodeName(name) : QString();
    }());
    return *own;
}

/// For file systems without hard links, such as FAT. For a moment the file is there without its contents.
FileError createFileInPlace(const QString &path, const QByteArray &contents)
{
    const FileDescriptor file = FileDescriptor::ofRegularFile(path, O_WRONLY | O_CREAT | O_EXCL);
    const bool isWritten = file.isOpen() && file.writeAll(contents);
    return isWritten ? FileError{} : FileError::ofLastCall(path);
}

} // namespace

QString LogFolder::processName()
{
    return QFileInfo(QFile::symLinkTarget(u"/proc/self/exe"_s)).fileName();
}

QString LogFolder::defaultPath()
{
    const QString state = stateFolder();
    return (state.isEmpty() ? temporaryLogs() : state + u"/Logs"_s) + u'/' + processName();
}

FileError LogFolder::create(const QString &path)
{
    if (mkdir(QFile::encodeName(path), userOnlyFolder) == 0)
        return {};
    FileError error = FileError::ofLastCall(path);
    if (error.fileExists() && QFileInfo(path).isDir())
        return {};
    const QString above = QFileInfo(path).path();
    if (!error.fileIsMissing() || above == path)
        return error;
    if (FileError errorAbove = create(above))
        return errorAbove;
    return mkdir(QFile::encodeName(path), userOnlyFolder) == 0 || errno == EEXIST ? FileError{}
                                                                                  : FileError::ofLastCall(path);
}

QStringList LogFolder::entries(const QString &path)
{
    return QDir(path).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Unsorted);
}

FileError LogFolder::createFile(const QString &path, const QByteArray &contents)
{
    // A hidden neighbour, so that both names lie on one file system; the temporary one goes with this object.
    const QFileInfo info(path);
    QTemporaryFile file(info.path() + u"/."_s + info.fileName() + u".XXXXXX"_s);
    if (!file.open() || file.write(contents) != contents.size() || !file.flush())
        return FileError::ofLastCall(path);
    if (link(QFile::encodeName(file.fileName()), QFile::encodeName(path)) == 0)
        return {};
    const bool knowsNoLinks = errno == EPERM || errno == EOPNOTSUPP;
    return knowsNoLinks ? createFileInPlace(path, contents) : FileError::ofLastCall(path);
}
