#include "UsbfsDevice.h"

#include "ControlPipe.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <functional>
#include <iterator>
#include <linux/usb/ch9.h>
#include <linux/usbdevice_fs.h>
#include <sys/ioctl.h>
#include <utility>

namespace
{
constexpr quint32 capabilities = USBDEVFS_CAP_ZERO_PACKET | USBDEVFS_CAP_NO_PACKET_SIZE_LIM |
                                 USBDEVFS_CAP_BULK_CONTINUATION | USBDEVFS_CAP_BULK_SCATTER_GATHER |
                                 USBDEVFS_CAP_REAP_AFTER_DISCONNECT;

} // namespace

UsbfsDevice::UsbfsDevice(Bus &bus, const QString &root, int number, PrinterModel model, UsbShape shape)
    : m_bus(bus)
    , m_number(number)
    , m_shape(std::move(shape))
    , m_sysfs(root, number)
    , m_root(root.toStdString())
    , m_handler(umockdev_ioctl_base_new())
    , m_interfaces(m_shape)
    , m_pipes(std::move(model), m_shape.packetSize, *this)
{
    g_signal_connect(m_handler.get(), "handle-ioctl", G_CALLBACK(onRequest), this);
}

UsbfsDevice::~UsbfsDevice() = default;

void UsbfsDevice::arrive(int deviceNumber)
{
    m_deviceNumber = deviceNumber;
    m_node = std::make_unique<UsbfsNode>(m_root / UsbfsSysfs::nodePath(deviceNumber).sliced(1).toStdString());
    m_node->setPermitted(m_permitted);
}

void UsbfsDevice::leave()
{
    if (!isPlugged())
        return;
    while (!m_pending.empty())
        complete(m_pending.begin(), -ESHUTDOWN);
    m_pipes.reset();
    m_interfaces.reset();
    m_node.reset();
    m_leaves.reset();
    m_bus.left(*this);
}

void UsbfsDevice::pullPlug()
{
    using enum PrinterScript::PulledPlug;
    const auto pulled = model().script().pulledPlug;
    if (!isPlugged() || m_leaves)
        return;
    if (pulled == AtOnce)
        return leave();
    m_leaves = m_bus.now() + PrinterScript::hubNotices;
    m_failure = pulled == Stalls ? -EPIPE : -EPROTO;
    while (!m_pending.empty())
        complete(m_pending.begin(), m_failure);
    m_pipes.reset();
}

gboolean UsbfsDevice::onRequest(UMockdevIoctlBase *, UMockdevIoctlClient *client, gpointer self)
{
    auto *device = static_cast<UsbfsDevice *>(self);
    const int answer = device->m_bus.serve(*device, client);
    umockdev_ioctl_client_complete(client, answer < 0 ? -1 : answer, answer < 0 ? -answer : 0);
    return true;
}

int UsbfsDevice::handle(UMockdevIoctlClient *client)
{
    dropOrphans();
    const unsigned long request = umockdev_ioctl_client_get_request(client);
    switch (request) {
    case USBDEVFS_GET_CAPABILITIES:
        *IoctlArgument<quint32>(client) = capabilities;
        return 0;
    case USBDEVFS_REAPURB:
    case USBDEVFS_REAPURBNDELAY:
        return reap(client);
    case USBDEVFS_DISCARDURB:
        return discard(client);
    default:
        break;
    }
    if (!isPlugged())
        return -ENODEV;
    switch (request) {
    case USBDEVFS_SUBMITURB:
        return submit(client);
    case USBDEVFS_CLEAR_HALT:
        if (m_leaves)
            return m_failure;
        m_pipes.clearHalt(*IoctlArgument<unsigned>(client) & USB_DIR_IN);
        return 0;
    default: {
        const int answer = m_interfaces.handle(request, client);
        if (request == USBDEVFS_SETINTERFACE && answer == 0) {
            m_pipes.clearHalt(false);
            m_pipes.clearHalt(true);
        }
        interfacesChanged();
        return answer;
    }
    }
}

int UsbfsDevice::submit(UMockdevIoctlClient *client)
{
    UsbfsUrb urb(client);
    if (const int refused = permitTransfer(urb, client); refused < 0)
        return refused;
    m_pending.push_back(std::move(urb));
    UsbfsUrb &submitted = m_pending.back();
    if (m_leaves)
        complete(std::prev(m_pending.end()), m_failure);
    else if (submitted.isControl() && answerControl(submitted))
        complete(std::prev(m_pending.end()), submitted.status);
    return 0;
}

int UsbfsDevice::permitTransfer(const UsbfsUrb &urb, UMockdevIoctlClient *client)
{
    if (!urb.isControl())
        return m_interfaces.claimForEndpoint(urb.endpoint(), client);
    if (urb.length() < ControlPipe::Setup::size)
        return -EINVAL;
    const std::optional<int> interface = ControlPipe::Setup::parse(urb.bytes()).interfaceToClaim(m_shape);
    return interface ? m_interfaces.claim(*interface, client) : 0;
}

bool UsbfsDevice::answerControl(UsbfsUrb &urb)
{
    const auto setup = ControlPipe::Setup::parse(urb.bytes());
    if (setup.asksForDeviceID()) {
        ++m_deviceIDQuestions;
        if (!m_pipes.model().identity().answersDeviceID)
            return false;
    }
    const auto answer = ControlPipe::answer(setup, m_pipes.model().identity(), m_shape);
    urb.status = answer ? 0 : -EPIPE;
    urb.in = answer.value_or(QByteArray());
    return true;
}

int UsbfsDevice::reap(UMockdevIoctlClient *client)
{
    const auto urb = std::ranges::find_if(m_done, [client](const UsbfsUrb &done) { return done.isFrom(client); });
    if (urb == m_done.end())
        return isPlugged() ? -EAGAIN : -ENODEV;
    urb->writeBack(client);
    m_done.erase(urb);
    if (m_done.empty() && m_node)
        m_node->setReady(false);
    return 0;
}

int UsbfsDevice::discard(UMockdevIoctlClient *client)
{
    gulong address = 0;
    std::memcpy(&address, umockdev_ioctl_client_get_arg(client)->data, sizeof address);
    const auto urb = std::ranges::find_if(
        m_pending, [&](const UsbfsUrb &pending) { return pending.isFrom(client) && pending.address() == address; });
    if (urb == m_pending.end())
        return -EINVAL; // It has completed; the program collects it.
    complete(urb, -ENOENT);
    return 0;
}

void UsbfsDevice::pump()
{
    pumpOut();
    pumpIn();
    if (m_pipes.unplugIsDue(m_bus.now()))
        pullPlug();
    if (m_leaves && *m_leaves <= m_bus.now())
        leave();
}

void UsbfsDevice::dropOrphans()
{
    std::erase_if(m_pending, std::mem_fn(&UsbfsUrb::isOrphan));
    std::erase_if(m_done, std::mem_fn(&UsbfsUrb::isOrphan));
    if (m_node)
        m_node->setReady(!m_done.empty());
    if (m_interfaces.releaseVanished())
        interfacesChanged();
}

UsbfsDevice::Urbs::iterator UsbfsDevice::nextOut()
{
    return std::ranges::find_if(m_pending, [](const UsbfsUrb &urb) { return !urb.isIn() && !urb.isControl(); });
}

void UsbfsDevice::pumpOut()
{
    for (auto urb = nextOut(); urb != m_pending.end(); urb = nextOut()) {
        if (!settle(urb, m_pipes.send(urb->bytes(), urb->out, m_bus.now())))
            return;
    }
}

void UsbfsDevice::pumpIn()
{
    const auto nextIn = [this] { return std::ranges::find_if(m_pending, &UsbfsUrb::isBulkIn); };
    for (auto urb = nextIn(); urb != m_pending.end(); urb = nextIn()) {
        if (!settle(urb, m_pipes.receive(urb->in, urb->length(), m_bus.now())))
            return;
    }
}

bool UsbfsDevice::settle(Urbs::iterator urb, PrinterPipes::Outcome outcome)
{
    switch (outcome) {
    case PrinterPipes::Outcome::Waiting:
        return false;
    case PrinterPipes::Outcome::Complete:
        complete(urb, 0);
        return true;
    case PrinterPipes::Outcome::Stalled:
        complete(urb, -EPIPE);
        return true;
    case PrinterPipes::Outcome::Overflow:
        complete(urb, -EOVERFLOW);
        return true;
    case PrinterPipes::Outcome::Unplug:
        pullPlug();
        return false;
    }
    Q_UNREACHABLE();
}

void UsbfsDevice::complete(Urbs::iterator urb, int status)
{
    urb->status = status;
    m_done.splice(m_done.end(), m_pending, urb);
    if (m_node)
        m_node->setReady(true);
}

void UsbfsDevice::received(const ReceivedFrame &frame)
{
    m_bus.received(*this, frame);
}

void UsbfsDevice::scheduled(const BusEvent &event)
{
    m_bus.scheduled(*this, event);
}

std::optional<UsbfsDevice::Instant> UsbfsDevice::nextDue(Instant now) const
{
    std::optional<Instant> due = m_pipes.nextDue(now);
    if (m_leaves)
        due = std::min(due.value_or(*m_leaves), *m_leaves);
    for (const UsbfsUrb &urb : m_pending) {
        if (urb.out.plan && !urb.out.taken)
            due = std::min(due.value_or(urb.out.due), urb.out.due);
    }
    return due;
}

bool UsbfsDevice::owesSomething() const
{
    return !m_done.empty() || (m_interfaces.claims() > 0 && m_pipes.hasReplyDue(m_bus.now()));
}

void UsbfsDevice::setKernelDriver(bool present)
{
    m_interfaces.setKernelDriver(present);
    interfacesChanged();
}

void UsbfsDevice::setHeld(bool held)
{
    m_interfaces.setHeld(held);
    interfacesChanged();
}

void UsbfsDevice::setPermitted(bool permitted)
{
    m_permitted = permitted;
    if (m_node)
        m_node->setPermitted(permitted);
}

void UsbfsDevice::interfacesChanged()
{
    if (m_interfaces.claims() == 0)
        m_pipes.model().endExchange();
    // The folders of a device that has left are being removed on the bus thread.
    if (!isPlugged())
        return;
    for (int number = 0; number < m_interfaces.count(); ++number)
        m_sysfs.showDriver(number, m_interfaces.driver(number), m_pipes.model().identity());
}
