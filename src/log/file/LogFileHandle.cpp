#include "LogFileHandle.h"

#include <QFile>
#include <fcntl.h>
#include <sys/stat.h>

FileError LogFileHandle::open(const QString &path)
{
    m_path = path;
    m_ownEnd = 0;
    m_file = FileDescriptor::ofRegularFile(path, O_RDWR | O_APPEND);
    return m_file.isOpen() ? FileError{} : error();
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
    if (m_file.writeAll(bytes)) {
        m_ownEnd = m_end + bytes.size();
        return {};
    }
    FileError failure = error();
    // A torn line would run into the next one.
    if (ftruncate(m_file.get(), m_end) == 0)
        lseek(m_file.get(), m_end, SEEK_SET);
    return failure;
}

FileError LogFileHandle::readOffset(quint64 &offset) const
{
    const off_t position = lseek(m_file.get(), 0, SEEK_CUR);
    if (position < 0)
        return error();
    offset = static_cast<quint64>(position);
    return {};
}

bool LogFileHandle::isGone() const
{
    struct stat open {
    };
    struct stat found {
    };
    const bool isThere = fstat(m_file.get(), &open) == 0 && lstat(QFile::encodeName(m_path), &found) == 0;
    return !isThere || open.st_dev != found.st_dev || open.st_ino != found.st_ino;
}

FileError LogFileHandle::synchronize()
{
    return fsync(m_file.get()) == 0 ? FileError{} : error();
}

FileError LogFileHandle::close()
{
    return m_file.close() ? FileError{} : error();
}
