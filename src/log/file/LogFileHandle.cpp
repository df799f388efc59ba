#include "LogFileHandle.h"

#include <QFile>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

FileError LogFileHandle::open(const QString &path)
{
    m_path = path;
    m_ownEnd = 0;
    // Not blocking, since opening a pipe that bears a log file's name would wait for a reader.
    FileDescriptor file(::open(QFile::encodeName(path), O_RDWR | O_APPEND | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    struct stat status {
    };
    if (!file.isOpen() || fstat(file.get(), &status) != 0)
        return error();
    if (!S_ISREG(status.st_mode))
        return {EINVAL, path};
    m_file = std::move(file);
    return {};
}

FileError LogFileHandle::seekToEnd()
{
    m_end = lseek(m_file.get(), 0, SEEK_END);
    return m_end < 0 ? error() : FileError{};
}

bool LogFileHandle::endsInTornLine() const
{
    if (m_end <= 0 || m_end == m_ownEnd)
        return false;
    char last = '\n';
    return pread(m_file.get(), &last, sizeof last, m_end - 1) == sizeof last && last != '\n';
}

FileError LogFileHandle::write(QByteArrayView bytes)
{
    const off_t newEnd = m_end + bytes.size();
    while (!bytes.isEmpty()) {
        const ssize_t written = ::write(m_file.get(), bytes.data(), static_cast<std::size_t>(bytes.size()));
        if (written < 0 && errno != EINTR) {
            FileError failure = error();
            // A torn line would run into the next one.
            if (ftruncate(m_file.get(), m_end) == 0)
                lseek(m_file.get(), m_end, SEEK_SET);
            return failure;
        }
        if (written > 0)
            bytes = bytes.sliced(written);
    }
    m_ownEnd = newEnd;
    return {};
}

FileError LogFileHandle::readOffset(quint64 &offset) const
{
    const off_t position = lseek(m_file.get(), 0, SEEK_CUR);
    if (position < 0)
        return error();
    offset = static_cast<quint64>(position);
    return {};
}

FileError LogFileHandle::synchronize()
{
    return fsync(m_file.get()) == 0 ? FileError{} : error();
}

FileError LogFileHandle::close()
{
    return m_file.close() ? FileError{} : error();
}
