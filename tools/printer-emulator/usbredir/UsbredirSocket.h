#pragma once

#include <QByteArray>
#include <chrono>
#include <optional>
#include <span>

/// The connection of one client to a Unix socket. Failures are `std::system_error`.
class UsbredirSocket
{
public:
    /// Listens at `path`, in place of whatever socket lies there, and waits for a client.
    explicit UsbredirSocket(const QByteArray &path);
    ~UsbredirSocket();
    UsbredirSocket(const UsbredirSocket &) = delete;
    UsbredirSocket &operator=(const UsbredirSocket &) = delete;

    /// Waits until there is something to read, at most for `limit`; for ever without one.
    void wait(std::optional<std::chrono::milliseconds> limit) const;

    /// How many bytes came without waiting; -1 when the client has gone.
    int read(std::span<quint8> bytes);
    /// How many bytes went out; -1 when the client has gone.
    int write(std::span<const quint8> bytes);

private:
    int m_socket = -1;
};
