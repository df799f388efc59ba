#include "UsbredirLine.h"

#include "UsbDescriptors.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <linux/usb/ch9.h>
#include <stdexcept>
#include <usbredirparser.h>

namespace
{
constexpr quint16 fullSpeedPacket = 64;
constexpr quint8 directionIn = 0x80;
constexpr int halfBits = 16;

quint8 statusOf(RemoteDevice::End end)
{
    switch (end) {
    case RemoteDevice::End::Success:
        return usb_redir_success;
    case RemoteDevice::End::Stall:
        return usb_redir_stall;
    case RemoteDevice::End::Overflow:
        return usb_redir_babble;
    case RemoteDevice::End::Error:
        return usb_redir_ioerror;
    }
    Q_UNREACHABLE();
}

UsbredirLine &lineOf(void *self)
{
    return *static_cast<UsbredirLine *>(self);
}

/// The capabilities by which a host controller of qemu learns what it must know of a device, and 32-bit lengths, with
/// which a transfer may exceed 64 KiB.
std::array<quint32, USB_REDIR_CAPS_SIZE> capabilities()
{
    std::array<quint32, USB_REDIR_CAPS_SIZE> set{};
    for (const int one :
         {usb_redir_cap_connect_device_version, usb_redir_cap_device_disconnect_ack,
          usb_redir_cap_ep_info_max_packet_size, usb_redir_cap_64bits_ids, usb_redir_cap_32bits_bulk_length})
        usbredirparser_caps_set_cap(set.data(), one);
    return set;
}

/// Null when there are no bytes: the parser refuses any other pointer then.
quint8 *bytesOf(QByteArray &data)
{
    return data.isEmpty() ? nullptr : reinterpret_cast<quint8 *>(data.data());
}

/// Where an endpoint stands in the tables of ep_info: the OUT endpoints first.
std::size_t placeOf(quint8 endpoint)
{
    return (endpoint & directionIn ? 16U : 0U) + (endpoint & USB_ENDPOINT_NUMBER_MASK);
}
} // namespace

void UsbredirLine::Destroy::operator()(usbredirparser *parser) const
{
    usbredirparser_destroy(parser);
}

UsbredirLine::UsbredirLine(const QByteArray &path)
    : m_socket(path)
    , m_parser(usbredirparser_create())
{
    listen();
    std::array<quint32, USB_REDIR_CAPS_SIZE> able = capabilities();
    usbredirparser_init(m_parser.get(), "printer-emulator", able.data(), static_cast<int>(able.size()),
                        usbredirparser_fl_usb_host);
    flush();
    while (!m_isIntroduced && m_isOpen) {
        m_socket.wait(std::nullopt);
        serve();
    }
}

/// Sets a function for every message that qemu may send to a device of these capabilities.
void UsbredirLine::listen()
{
    usbredirparser &on = *m_parser;
    on.priv = this;
    on.log_func = [](void *, int level, const char *text) {
        if (level <= usbredirparser_warning)
            std::fprintf(stderr, "printer-emulator: %s\n", text);
    };
    on.read_func = [](void *self, quint8 *bytes, int count) {
        return lineOf(self).m_socket.read({bytes, static_cast<std::size_t>(count)});
    };
    on.write_func = [](void *self, quint8 *bytes, int count) {
        return lineOf(self).m_socket.write({bytes, static_cast<std::size_t>(count)});
    };
    on.hello_func = [](void *self, usb_redir_hello_header *) { lineOf(self).m_isIntroduced = true; };
    on.device_disconnect_ack_func = [](void *) {};
    on.reset_func = [](void *self) {
        if (RemoteDevice *const device = lineOf(self).m_device)
            device->reset();
    };
    on.set_configuration_func = [](void *self, Identity identity, usb_redir_set_configuration_header *asked) {
        lineOf(self).setConfiguration(identity, asked->configuration);
    };
    on.get_configuration_func = [](void *self, Identity identity) { lineOf(self).tellConfiguration(identity); };
    on.set_alt_setting_func = [](void *self, Identity identity, usb_redir_set_alt_setting_header *asked) {
        if (RemoteDevice *const device = lineOf(self).m_device)
            device->setInterface();
        lineOf(self).tellAlternateSetting(identity, asked->interface);
    };
    on.get_alt_setting_func = [](void *self, Identity identity, usb_redir_get_alt_setting_header *asked) {
        lineOf(self).tellAlternateSetting(identity, asked->interface);
    };
    on.cancel_data_packet_func = [](void *self, Identity identity) { lineOf(self).giveUp(identity); };
    on.control_packet_func = [](void *self, Identity identity, usb_redir_control_packet_header *asked, quint8 *data,
                                int) {
        UsbredirLine &line = lineOf(self);
        usbredirparser_free_packet_data(line.m_parser.get(), data);
        line.control(identity, *asked);
    };
    on.bulk_packet_func = [](void *self, Identity identity, usb_redir_bulk_packet_header *asked, quint8 *data,
                             int size) {
        UsbredirLine &line = lineOf(self);
        const QByteArray bytes(reinterpret_cast<const char *>(data), size);
        usbredirparser_free_packet_data(line.m_parser.get(), data);
        line.begin(identity, *asked, bytes);
    };
}

UsbShape UsbredirLine::shape() const
{
    UsbShape shape;
    shape.packetSize = fullSpeedPacket;
    return shape;
}

void UsbredirLine::plug(RemoteDevice &device)
{
    m_device = &device;
    describe();
    const ModelIdentity &identity = device.model().identity();
    usb_redir_device_connect_header connect{};
    connect.speed = usb_redir_speed_full;
    connect.vendor_id = identity.vendorID;
    connect.product_id = identity.productID;
    usbredirparser_send_device_connect(m_parser.get(), &connect);
}

/// The interface and its endpoints, which qemu wants to know beforehand and once more with the configuration.
void UsbredirLine::describe()
{
    const UsbShape::AlternateSetting &setting = m_device->shape().interfaces.front().front();
    usb_redir_interface_info_header interfaces{};
    interfaces.interface_count = 1;
    interfaces.interface_class[0] = setting.interfaceClass;
    interfaces.interface_subclass[0] = setting.interfaceSubclass;
    interfaces.interface_protocol[0] = setting.protocol;
    usbredirparser_send_interface_info(m_parser.get(), &interfaces);

    usb_redir_ep_info_header endpoints{};
    std::ranges::fill(endpoints.type, static_cast<quint8>(usb_redir_type_invalid));
    for (const quint8 endpoint : {quint8{0}, directionIn}) {
        endpoints.type[placeOf(endpoint)] = usb_redir_type_control;
        endpoints.max_packet_size[placeOf(endpoint)] = fullSpeedPacket;
    }
    for (const quint8 endpoint : {UsbDescriptors::outEndpoint(0), UsbDescriptors::inEndpoint(0)}) {
        endpoints.type[placeOf(endpoint)] = usb_redir_type_bulk;
        endpoints.max_packet_size[placeOf(endpoint)] = m_device->shape().packetSize;
    }
    usbredirparser_send_ep_info(m_parser.get(), &endpoints);
}

void UsbredirLine::unplug()
{
    if (m_device && m_isOpen)
        usbredirparser_send_device_disconnect(m_parser.get());
    m_device = nullptr;
    m_configuration = 0;
}

void UsbredirLine::serve()
{
    if (usbredirparser_do_read(m_parser.get()) != usbredirparser_read_io_error)
        return;
    m_isOpen = false;
    unplug();
}

void UsbredirLine::flush()
{
    while (m_isOpen && usbredirparser_has_data_to_write(m_parser.get()))
        m_isOpen = usbredirparser_do_write(m_parser.get()) == 0;
}

void UsbredirLine::setConfiguration(Identity identity, quint8 configuration)
{
    m_configuration = configuration;
    if (m_device)
        describe();
    tellConfiguration(identity);
}

void UsbredirLine::tellConfiguration(Identity identity)
{
    usb_redir_configuration_status_header told{usb_redir_success, m_configuration};
    usbredirparser_send_configuration_status(m_parser.get(), identity, &told);
}

/// There is only one setting.
void UsbredirLine::tellAlternateSetting(Identity identity, quint8 interface)
{
    usb_redir_alt_setting_status_header told{usb_redir_success, interface, 0};
    usbredirparser_send_alt_setting_status(m_parser.get(), identity, &told);
}

void UsbredirLine::control(Identity identity, const usb_redir_control_packet_header &asked)
{
    if (!m_device)
        return;
    const auto [end, bytes] =
        m_device->control({asked.requesttype, asked.request, asked.value, asked.index, asked.length});
    usb_redir_control_packet_header told = asked;
    told.status = statusOf(end);
    QByteArray data = asked.requesttype & directionIn ? bytes : QByteArray();
    if (asked.requesttype & directionIn)
        told.length = static_cast<quint16>(data.size());
    usbredirparser_send_control_packet(m_parser.get(), identity, &told, bytesOf(data), static_cast<int>(data.size()));
}

void UsbredirLine::begin(Identity identity, const usb_redir_bulk_packet_header &asked, const QByteArray &data)
{
    if (!m_device)
        return;
    const bool isIn = asked.endpoint & directionIn;
    const qsizetype length = asked.length | static_cast<qsizetype>(asked.length_high) << halfBits;
    m_device->begin(
        {.identity = identity, .isIn = isIn, .length = length, .bytes = isIn ? QByteArray() : data, .out = {}});
}

void UsbredirLine::giveUp(Identity identity)
{
    if (const auto transfer = m_device ? m_device->giveUp(identity) : std::nullopt)
        answer(*transfer, usb_redir_cancelled, {});
}

void UsbredirLine::ended(const RemoteDevice::Transfer &transfer, RemoteDevice::End end)
{
    answer(transfer, statusOf(end), transfer.bytes);
}

void UsbredirLine::answer(const RemoteDevice::Transfer &transfer, quint8 status, const QByteArray &received)
{
    QByteArray data = transfer.isIn ? received : QByteArray();
    const qsizetype length = transfer.isIn ? data.size() : transfer.out.sent;
    usb_redir_bulk_packet_header told{};
    told.endpoint = transfer.isIn ? UsbDescriptors::inEndpoint(0) : UsbDescriptors::outEndpoint(0);
    told.status = status;
    told.length = static_cast<quint16>(length);
    told.length_high = static_cast<quint16>(length >> halfBits);
    usbredirparser_send_bulk_packet(m_parser.get(), transfer.identity, &told, bytesOf(data),
                                    static_cast<int>(data.size()));
}
