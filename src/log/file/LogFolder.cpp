#include "LogFolder.h"

#include "FileDescriptor.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
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

QString stateFolder()
{
    if (QString folder = folderFromEnvironment("XDG_STATE_HOME"); !folder.isEmpty())
        return folder;
    if (const QString home = folderFromEnvironment("HOME"); !home.isEmpty())
        return home + u"/.local/state"_s;
    return QDir::tempPath();
}

/// A file under a passing name; a further name that it was given by then keeps it alive.
class TemporaryFile
{
public:
    /// A hidden neighbour of `path`, so that both lie on one file system.
    explicit TemporaryFile(const QString &path)
    {
        const QFileInfo info(path);
        m_name = QFile::encodeName(info.path() + u"/."_s + info.fileName() + u".XXXXXX"_s);
        m_descriptor = FileDescriptor(mkostemp(m_name.data(), O_CLOEXEC));
    }
    TemporaryFile(const TemporaryFile &) = delete;
    TemporaryFile &operator=(const TemporaryFile &) = delete;
    ~TemporaryFile()
    {
        if (m_descriptor.isOpen())
            unlink(m_name);
    }

    int descriptor() const { return m_descriptor.get(); }
    const char *name() const { return m_name.constData(); }

private:
    QByteArray m_name;
    FileDescriptor m_descriptor;
};

/// False, with errno set, as soon as a byte cannot be written.
bool writeAll(int descriptor, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), static_cast<std::size_t>(bytes.size()));
        if (written < 0 && errno != EINTR)
            return false;
        if (written > 0)
            bytes = bytes.sliced(written);
    }
    return true;
}

/// For file systems without hard links, such as FAT: the file is there a moment before its contents.
FileError createFileInPlace(const QString &path, const QByteArray &contents)
{
    constexpr mode_t userOnlyFile = 0600;
    const FileDescriptor file(::open(QFile::encodeName(path), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, userOnlyFile));
    const bool isWritten = file.isOpen() && writeAll(file.get(), contents);
    return isWritten ? FileError{} : FileError::ofLastCall(path);
}

} // namespace

QString LogFolder::processName()
{
    return QFileInfo(QFile::symLinkTarget(u"/proc/self/exe"_s)).fileName();
}

QString LogFolder::defaultPath()
{
    return stateFolder() + u"/Logs/"_s + processName();
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
    QStringList names;
    std::error_code error;
    std::filesystem::directory_iterator entry(QFile::encodeName(path).constData(), error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error))
        names.append(QFile::decodeName(entry->path().filename().c_str()));
    return names;
}

FileError LogFolder::createFile(const QString &path, const QByteArray &contents)
{
    const TemporaryFile file(path);
    if (file.descriptor() < 0 || !writeAll(file.descriptor(), contents))
        return FileError::ofLastCall(path);
    if (link(file.name(), QFile::encodeName(path)) == 0)
        return {};
    const bool knowsNoLinks = errno == EPERM || errno == EOPNOTSUPP;
    return knowsNoLinks ? createFileInPlace(path, contents) : FileError::ofLastCall(path);
}
