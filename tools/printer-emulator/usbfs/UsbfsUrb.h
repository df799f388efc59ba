#pragma once

#include "PrinterPipes.h"
#include "UsbfsIoctl.h"

#include <QByteArray>
#include <QByteArrayView>

/// One transfer that a program has submitted and not yet collected.
class UsbfsUrb
{
public:
    /// Takes the request's structure; its memory belongs to the client until `writeBack`.
    explicit UsbfsUrb(UMockdevIoctlClient *client);

    bool isFrom(const UMockdevIoctlClient *client) const { return m_client.get() == client; }
    /// Its program has closed the node.
    bool isOrphan() const { return !umockdev_ioctl_client_get_connected(m_client.get()); }
    gulong address() const { return m_urb->client_addr; }
    quint8 endpoint() const { return m_endpoint; }
    bool isIn() const { return m_endpoint & 0x80; }
    bool isControl() const { return m_control; }
    bool isBulkIn() const { return isIn() && !isControl(); }
    qsizetype length() const { return m_length; }
    /// The program's bytes: what it sends, or, for a control transfer, the setup packet and its data.
    QByteArrayView bytes() const;

    /// Fills in the outcome and hands the transfer back as the answer to a request to collect it.
    void writeBack(UMockdevIoctlClient *reaper) const;

    int status = 0; ///< 0 or a negative errno.
    QByteArray in;  ///< Bytes received so far.
    OutProgress out;

private:
    GObjectRef<UMockdevIoctlClient> m_client;
    GObjectRef<UMockdevIoctlData> m_urb;
    GObjectRef<UMockdevIoctlData> m_buffer; ///< Null for a zero-length packet.
    quint8 m_endpoint = 0;
    bool m_control = false;
    qsizetype m_length = 0;
};
