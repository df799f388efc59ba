#include "FileDescriptor.h"

#include <QFile>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

FileDescriptor FileDescriptor::ofRegularFile(const QString &path, int flags)
{
    constexpr mode_t userOnly = 0600;
    FileDescriptor file(
        ::open(QFile::encodeName(path), flags | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, userOnly));
    struct stat status {
    };
    if (!file.isOpen() || fstat(file.get(), &status) != 0)
        return {};
    if (S_ISREG(status.st_mode))
        return file;
    static_cast<void>(file.close());
    errno = EINVAL;
    return {};
}

bool FileDescriptor::writeAll(QByteArrayView bytes) const
{
    while (!bytes.isEmpty()) {
        const ssize_t written = ::write(m_descriptor, bytes.data(), static_cast<std::size_t>(bytes.size()));
        if (written < 0 && errno != EINTR)
            return false;
        if (written > 0)
            bytes = bytes.sliced(written);
    }
    return true;
}
