#include "UsbredirSocket.h"

#include <algorithm>
#include <cerrno>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <system_error>
#include <unistd.h>

namespace
{
[[noreturn]] void fail(const QByteArray &what, int reason)
{
    throw std::system_error(reason, std::system_category(), what.toStdString());
}

/// A socket that listens at the path.
int listenAt(const QByteArray &path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= static_cast<qsizetype>(sizeof address.sun_path))
        fail(path, ENAMETOOLONG);
    std::ranges::copy(path, address.sun_path);
    const int server = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    ::unlink(path.constData());
    if (::bind(server, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0 || ::listen(server, 1) != 0) {
        const int reason = errno;
        ::close(server);
        fail(path, reason);
    }
    return server;
}
} // namespace

UsbredirSocket::UsbredirSocket(const QByteArray &path)
{
    const int server = listenAt(path);
    m_socket = ::accept4(server, nullptr, nullptr, SOCK_CLOEXEC);
    const int reason = errno;
    ::close(server);
    ::unlink(path.constData());
    if (m_socket < 0)
        fail(path, reason);
}

UsbredirSocket::~UsbredirSocket()
{
    ::close(m_socket);
}

void UsbredirSocket::wait(std::optional<std::chrono::milliseconds> limit) const
{
    pollfd input{m_socket, POLLIN, 0};
    ::poll(&input, 1, limit ? static_cast<int>(limit->count()) : -1);
}

int UsbredirSocket::read(std::span<quint8> bytes)
{
    const ssize_t count = ::recv(m_socket, bytes.data(), bytes.size(), MSG_DONTWAIT);
    if (count > 0)
        return static_cast<int>(count);
    return count < 0 && (errno == EAGAIN || errno == EINTR) ? 0 : -1;
}

int UsbredirSocket::write(std::span<const quint8> bytes)
{
    const ssize_t count = ::send(m_socket, bytes.data(), bytes.size(), MSG_NOSIGNAL);
    return count < 0 && errno == EINTR ? 0 : static_cast<int>(count);
}
