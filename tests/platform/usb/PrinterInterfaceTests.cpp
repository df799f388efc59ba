#include "PrinterInterface.h"

#include <QTest>
#include <vector>

namespace
{

struct Setting {
    quint8 interface;
    quint8 alternate;
    quint8 interfaceClass;
    quint8 subclass;
    quint8 protocol;
    std::vector<libusb_endpoint_descriptor> endpoints;
};

libusb_endpoint_descriptor endpoint(quint8 address, quint8 type, quint16 packetSize)
{
    libusb_endpoint_descriptor descriptor = {};
    descriptor.bEndpointAddress = address;
    descriptor.bmAttributes = type;
    descriptor.wMaxPacketSize = packetSize;
    return descriptor;
}

const auto out = endpoint(0x01, LIBUSB_TRANSFER_TYPE_BULK, 512);
const auto in = endpoint(0x82, LIBUSB_TRANSFER_TYPE_BULK, 512);
const auto interruptIn = endpoint(0x83, LIBUSB_TRANSFER_TYPE_INTERRUPT, 8);

/// A configuration descriptor as libusb hands it out, over the settings in the order of their interfaces.
class Configuration
{
public:
    explicit Configuration(const std::vector<Setting> &settings)
        : m_settings(settings)
    {
        for (const Setting &setting : m_settings) {
            if (setting.interface == m_lists.size())
                m_lists.emplace_back();
            libusb_interface_descriptor descriptor = {};
            descriptor.bInterfaceNumber = setting.interface;
            descriptor.bAlternateSetting = setting.alternate;
            descriptor.bInterfaceClass = setting.interfaceClass;
            descriptor.bInterfaceSubClass = setting.subclass;
            descriptor.bInterfaceProtocol = setting.protocol;
            descriptor.bNumEndpoints = static_cast<quint8>(setting.endpoints.size());
            descriptor.endpoint = setting.endpoints.data();
            m_lists.back().push_back(descriptor);
        }
        for (const auto &list : m_lists)
            m_interfaces.push_back({list.data(), static_cast<int>(list.size())});
        m_descriptor.bNumInterfaces = static_cast<quint8>(m_interfaces.size());
        m_descriptor.interface = m_interfaces.data();
    }

    const libusb_config_descriptor &descriptor() const { return m_descriptor; }

private:
    const std::vector<Setting> m_settings;
    std::vector<std::vector<libusb_interface_descriptor>> m_lists;
    std::vector<libusb_interface> m_interfaces;
    libusb_config_descriptor m_descriptor = {};
};

} // namespace

Q_DECLARE_METATYPE(std::vector<Setting>)

class PrinterInterfaceTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choice_data();
    void choice();
};

void PrinterInterfaceTests::choice_data()
{
    QTest::addColumn<std::vector<Setting>>("settings");
    QTest::addColumn<int>("number"); // -1: none
    QTest::addColumn<int>("alternate");
    QTest::addColumn<bool>("hasAlternatives");

    using Settings = std::vector<Setting>;
    QTest::newRow("the only one") << Settings{{0, 0, 7, 1, 2, {out, in}}} << 0 << 0 << false;
    QTest::newRow("behind a scanner") << Settings{{0, 0, 255, 0, 0, {out, in}}, {1, 0, 7, 1, 2, {out, in}}} << 1 << 0
                                      << false;
    QTest::newRow("bidirectional beats an earlier unidirectional")
        << Settings{{0, 0, 7, 1, 1, {out, in}}, {1, 0, 7, 1, 2, {out, in}}} << 1 << 0 << false;
    QTest::newRow("bidirectional as an alternate setting")
        << Settings{{0, 0, 7, 1, 1, {out}}, {0, 1, 7, 1, 2, {in, out}}} << 0 << 1 << true;
    QTest::newRow("the first of two good settings")
        << Settings{{0, 0, 7, 1, 2, {out, in}}, {0, 1, 7, 1, 4, {out, in}}} << 0 << 0 << true;
    QTest::newRow("unidirectional that can be read") << Settings{{0, 0, 7, 1, 1, {out, in}}} << 0 << 0 << false;
    QTest::newRow("bidirectional without a way in, unidirectional with one")
        << Settings{{0, 0, 7, 1, 2, {out}}, {0, 1, 7, 1, 1, {out, in}}} << 0 << 1 << true;
    QTest::newRow("an interrupt pipe is no way in")
        << Settings{{0, 0, 7, 1, 2, {out, interruptIn}}} << -1 << 0 << false;
    QTest::newRow("IPP over USB only") << Settings{{0, 0, 7, 1, 4, {out, in}}} << -1 << 0 << false;
    QTest::newRow("another subclass") << Settings{{0, 0, 7, 2, 2, {out, in}}} << -1 << 0 << false;
    QTest::newRow("no printer") << Settings{{0, 0, 8, 6, 80, {out, in}}} << -1 << 0 << false;
    QTest::newRow("no interface at all") << Settings{} << -1 << 0 << false;
}

void PrinterInterfaceTests::choice()
{
    QFETCH(std::vector<Setting>, settings);
    QFETCH(int, number);
    QFETCH(int, alternate);
    QFETCH(bool, hasAlternatives);
    const Configuration configuration(settings);
    const auto chosen = choosePrinterInterface(configuration.descriptor());
    QCOMPARE(chosen.has_value(), number >= 0);
    if (!chosen)
        return;
    QCOMPARE(chosen->number, number);
    QCOMPARE(chosen->alternateSetting, alternate);
    QCOMPARE(chosen->hasAlternatives, hasAlternatives);
    QCOMPARE(chosen->outEndpoint, out.bEndpointAddress);
    QCOMPARE(chosen->inEndpoint, in.bEndpointAddress);
    QCOMPARE(chosen->inPacketSize, 512);
}

QTEST_GUILESS_MAIN(PrinterInterfaceTests)
#include "PrinterInterfaceTests.moc"
