#include "knockAt.h"

#include "FileDescriptor.h"

#include <cerrno>
#include <memory>
#include <netdb.h>
#include <poll.h>
#include <sys/socket.h>

namespace
{

using Addresses = std::unique_ptr<addrinfo, decltype([](addrinfo *list) { ::freeaddrinfo(list); })>;

Addresses readAddress(const QString &address, int port)
{
    addrinfo wanted{};
    wanted.ai_flags = AI_NUMERICHOST | AI_NUMERICSERV;
    wanted.ai_socktype = SOCK_STREAM;
    addrinfo *found = nullptr;
    const QByteArray service = QByteArray::number(port);
    return Addresses(
        ::getaddrinfo(address.toLatin1().constData(), service.constData(), &wanted, &found) == 0 ? found : nullptr);
}

/// The error that a connection ends with; 0 for none, ETIMEDOUT when it takes too long.
int connectionError(const addrinfo &to, std::chrono::milliseconds atMost)
{
    const FileDescriptor socket(::socket(to.ai_family, to.ai_socktype | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
    if (::connect(socket.get(), to.ai_addr, to.ai_addrlen) == 0)
        return 0;
    if (errno != EINPROGRESS)
        return errno;
    pollfd finished{.fd = socket.get(), .events = POLLOUT, .revents = 0};
    if (::poll(&finished, 1, static_cast<int>(atMost.count())) != 1)
        return ETIMEDOUT;
    int error = 0;
    socklen_t size = sizeof error;
    return ::getsockopt(socket.get(), SOL_SOCKET, SO_ERROR, &error, &size) == 0 ? error : errno;
}

} // namespace

// libcups can connect as well, but calls a refusal and a missing route alike "Host is down".
PrinterReach knockAt(const QString &address, int port, std::chrono::milliseconds atMost)
{
    const Addresses to = readAddress(address, port);
    switch (to ? connectionError(*to, atMost) : EHOSTUNREACH) {
    case 0:
        return PrinterReach::Answers;
    case ECONNREFUSED:
        return PrinterReach::Refuses;
    default:
        return PrinterReach::Silent;
    }
}
