#include "UsbfsUrb.h"

#include "ControlPipe.h"

#include <algorithm>
#include <linux/usbdevice_fs.h>

UsbfsUrb::UsbfsUrb(UMockdevIoctlClient *client)
    : m_client(share(client))
{
    IoctlArgument<usbdevfs_urb> urb(client);
    m_endpoint = urb->endpoint;
    m_control = urb->type == USBDEVFS_URB_TYPE_CONTROL;
    m_length = urb->buffer_length;
    m_urb = urb.take();
    m_buffer = resolve(m_urb.get(), offsetof(usbdevfs_urb, buffer), static_cast<std::size_t>(m_length));
}

QByteArrayView UsbfsUrb::bytes() const
{
    return m_buffer ? QByteArrayView(m_buffer->data, m_length) : QByteArrayView();
}

void UsbfsUrb::writeBack(UMockdevIoctlClient *reaper) const
{
    auto *urb = reinterpret_cast<usbdevfs_urb *>(m_urb->data);
    urb->status = status;
    urb->actual_length = static_cast<int>(isIn() || isControl() ? in.size() : out.sent);
    if (!in.isEmpty())
        std::ranges::copy(in, m_buffer->data + (isControl() ? ControlPipe::Setup::size : 0));
    const auto answer = resolve(umockdev_ioctl_client_get_arg(reaper), 0, sizeof(void *));
    umockdev_ioctl_data_set_ptr(answer.get(), 0, m_urb.get());
}
