#include "UsbipLine.h"

#include <cerrno>
#include <thread>
#include <utility>

using UsbipMessages::Request;

namespace
{
int statusOf(RemoteDevice::End end)
{
    switch (end) {
    case RemoteDevice::End::Success:
        return 0;
    case RemoteDevice::End::Stall:
        return -EPIPE;
    case RemoteDevice::End::Overflow:
        return -EOVERFLOW;
    case RemoteDevice::End::Error:
        return -EPROTO;
    }
    Q_UNREACHABLE();
}
} // namespace

void UsbipLine::plug(RemoteDevice &device)
{
    m_device = &device;
    m_host.emplace();
}

void UsbipLine::unplug()
{
    m_host.reset();
    m_answers.clear();
}

void UsbipLine::wait(std::optional<std::chrono::milliseconds> limit)
{
    if (m_host)
        m_host->wait(limit);
    else
        std::this_thread::sleep_for(limit.value_or(std::chrono::milliseconds(0)));
}

void UsbipLine::serve()
{
    while (m_host && m_host->hasInput()) {
        if (!serveOne())
            unplug();
    }
}

/// Handles one message; false when the kernel has let go of the device.
bool UsbipLine::serveOne()
{
    const std::optional<QByteArray> header = m_host->read(UsbipMessages::headerSize);
    if (!header)
        return false;
    const Request request = Request::parse(*header);
    const std::optional<QByteArray> data = m_host->read(request.dataSize());
    if (!data)
        return false;
    if (request.isUnlink)
        m_answers += UsbipMessages::unlinked(request.sequence, m_device->giveUp(request.unlinked).has_value());
    else if (request.endpoint == 0)
        control(request);
    else
        m_device->begin(
            {.identity = request.sequence, .isIn = request.isIn, .length = request.length, .bytes = *data, .out = {}});
    return true;
}

void UsbipLine::control(const Request &request)
{
    const auto [end, bytes] = m_device->control(ControlPipe::Setup::parse(request.setup));
    if (request.isIn || end != RemoteDevice::End::Success)
        m_answers += UsbipMessages::received(request.sequence, statusOf(end), bytes);
    else
        m_answers += UsbipMessages::sent(request.sequence, 0, request.length);
}

void UsbipLine::ended(const RemoteDevice::Transfer &transfer, RemoteDevice::End end)
{
    const auto sequence = static_cast<quint32>(transfer.identity);
    m_answers += transfer.isIn ? UsbipMessages::received(sequence, statusOf(end), transfer.bytes)
                               : UsbipMessages::sent(sequence, statusOf(end), transfer.out.sent);
}

void UsbipLine::flush()
{
    if (m_host)
        m_host->write(std::exchange(m_answers, {}));
}
