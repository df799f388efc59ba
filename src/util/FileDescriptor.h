#pragma once

#include <QByteArrayView>
#include <QString>
#include <unistd.h>
#include <utility>

/// Owns a file descriptor and closes it.
class FileDescriptor
{
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int descriptor)
        : m_descriptor(descriptor)
    {
    }
    ~FileDescriptor() { static_cast<void>(close()); }
    FileDescriptor(FileDescriptor &&other) noexcept
        : m_descriptor(other.release())
    {
    }
    FileDescriptor &operator=(FileDescriptor &&other) noexcept
    {
        static_cast<void>(close());
        m_descriptor = other.release();
        return *this;
    }

    /// A regular file, opened with these flags of open(2) and, where they create it, for the user alone. Never follows
    /// a symbolic link and never waits, as opening a pipe would. Not open, with errno set, when that fails.
    static FileDescriptor ofRegularFile(const QString &path, int flags);

    int get() const { return m_descriptor; }
    bool isOpen() const { return m_descriptor >= 0; }
    int release() { return std::exchange(m_descriptor, -1); }
    /// False, with errno set, when the system reports an error; the descriptor is given up in either case.
    bool close() { return !isOpen() || ::close(release()) == 0; }
    /// False, with errno set, as soon as a byte cannot be written.
    bool writeAll(QByteArrayView bytes) const;

private:
    int m_descriptor = -1;
};
