#pragma once

#include "FileDescriptor.h"

#include <QByteArray>
#include <sys/socket.h>
#include <sys/un.h>

/// The end of a system log that takes the lines.
class LogSocket
{
public:
    explicit LogSocket(const char *path)
        : m_socket(socket(AF_UNIX, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0))
    {
        sockaddr_un address{AF_UNIX, {}};
        qstrncpy(address.sun_path, path, sizeof address.sun_path);
        if (bind(m_socket.get(), reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0)
            qFatal("cannot listen at %s", path);
    }

    QByteArray received() const
    {
        QByteArray bytes(1000, Qt::Uninitialized);
        bytes.truncate(std::max<ssize_t>(recv(m_socket.get(), bytes.data(), bytes.size(), 0), 0));
        return bytes;
    }

private:
    const FileDescriptor m_socket;
};
