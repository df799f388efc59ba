#pragma once

#include "RemoteLine.h"
#include "UsbredirSocket.h"

#include <cstdint>
#include <memory>

struct usb_redir_bulk_packet_header;
struct usb_redir_control_packet_header;
struct usbredirparser;

/// The line to a machine that qemu emulates: the printer is a full-speed device in a port of that machine's own host
/// controller or hub, with a `usb-redir` device as its plug. The library's parser knows the protocol; here lies what
/// the messages mean.
class UsbredirLine final : public RemoteLine
{
public:
    /// Waits until qemu has connected to this socket and introduced itself.
    explicit UsbredirLine(const QByteArray &path);

    UsbShape shape() const override;
    void plug(RemoteDevice &device) override;
    void unplug() override;
    bool isPlugged() const override { return m_device; }
    void wait(std::optional<std::chrono::milliseconds> limit) override { m_socket.wait(limit); }
    void serve() override;
    void ended(const RemoteDevice::Transfer &transfer, RemoteDevice::End end) override;
    void flush() override;

private:
    using Identity = std::uint64_t;

    void listen();
    void describe();
    void setConfiguration(Identity identity, quint8 configuration);
    void tellConfiguration(Identity identity);
    void tellAlternateSetting(Identity identity, quint8 interface);
    void control(Identity identity, const usb_redir_control_packet_header &asked);
    void begin(Identity identity, const usb_redir_bulk_packet_header &asked, const QByteArray &data);
    void giveUp(Identity identity);
    void answer(const RemoteDevice::Transfer &transfer, quint8 status, const QByteArray &received);

    struct Destroy {
        void operator()(usbredirparser *parser) const;
    };

    UsbredirSocket m_socket;
    std::unique_ptr<usbredirparser, Destroy> m_parser;
    RemoteDevice *m_device = nullptr; ///< While it is plugged.
    quint8 m_configuration = 0;
    bool m_isIntroduced = false;
    bool m_isOpen = true;
};
