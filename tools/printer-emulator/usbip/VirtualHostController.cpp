#include "VirtualHostController.h"

#include <QFile>
#include <array>
#include <cerrno>
#include <cstring>
#include <poll.h>
#include <stdexcept>
#include <sys/socket.h>
#include <system_error>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr char controller[] = "/sys/devices/platform/vhci_hcd.0/";
constexpr int highSpeed = 3;
constexpr int freePort = 4; ///< VDEV_ST_NULL
constexpr int deviceID = 0x10002;

[[noreturn]] void fail(const QFile &file)
{
    throw std::runtime_error(qPrintable(file.fileName() + u": "_s + file.errorString()));
}

/// Lines of "hs 0000 004 000 00000000 000000 0-0": hub, port, state, ...
int firstFreePort()
{
    QFile status(QLatin1StringView(controller) + u"status"_s);
    if (!status.open(QFile::ReadOnly))
        fail(status);
    for (const QByteArray &line : status.readAll().split('\n')) {
        const QList<QByteArray> fields = line.simplified().split(' ');
        if (fields.size() > 2 && fields[0] == "hs" && fields[2].toInt() == freePort)
            return fields[1].toInt();
    }
    throw std::runtime_error("the virtual host controller has no free port");
}
} // namespace

VirtualHostController::VirtualHostController()
{
    std::array<int, 2> ends{};
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0)
        throw std::system_error(errno, std::system_category(), "socketpair");
    m_socket = ends[0];
    QFile attach(QLatin1StringView(controller) + u"attach"_s);
    const QByteArray request = QByteArray::number(firstFreePort()) + ' ' + QByteArray::number(ends[1]) + ' ' +
                               QByteArray::number(deviceID) + ' ' + QByteArray::number(highSpeed);
    const bool attached = attach.open(QFile::WriteOnly | QFile::Unbuffered) && attach.write(request) == request.size();
    close(ends[1]);
    if (!attached)
        fail(attach);
}

VirtualHostController::~VirtualHostController()
{
    shutdown(m_socket, SHUT_RDWR);
    close(m_socket);
}

void VirtualHostController::wait(std::optional<std::chrono::milliseconds> limit) const
{
    pollfd input{m_socket, POLLIN, 0};
    poll(&input, 1, limit ? static_cast<int>(limit->count()) : -1);
}

bool VirtualHostController::hasInput() const
{
    pollfd input{m_socket, POLLIN, 0};
    return poll(&input, 1, 0) > 0;
}

std::optional<QByteArray> VirtualHostController::read(qsizetype size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    qsizetype got = 0;
    while (got < size) {
        const ssize_t piece = recv(m_socket, bytes.data() + got, static_cast<std::size_t>(size - got), 0);
        if (piece < 0 && errno == EINTR)
            continue;
        if (piece <= 0)
            return std::nullopt;
        got += piece;
    }
    return bytes;
}

void VirtualHostController::write(QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t piece = send(m_socket, bytes.data(), static_cast<std::size_t>(bytes.size()), MSG_NOSIGNAL);
        if (piece < 0 && errno == EINTR)
            continue;
        if (piece < 0)
            return; // The next read tells that the kernel has let go.
        bytes = bytes.sliced(piece);
    }
}
