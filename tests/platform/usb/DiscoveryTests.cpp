#include "Rows.h"
#include "UsbTestBed.h"

#include <mutex>

using namespace Qt::Literals::StringLiterals;

namespace
{

const std::vector<quint16> ourVendors{0x6A1B, 0x6A1C};

/// Keeps the lists that a watcher was told.
class ReportedLists
{
public:
    UsbPort::ListChanged listener()
    {
        return [this](const UsbDeviceList &list) {
            const std::lock_guard lock(m_mutex);
            m_lists.push_back(list);
        };
    }

    std::vector<UsbDeviceList> all() const
    {
        const std::lock_guard lock(m_mutex);
        return m_lists;
    }

    /// How long each list was.
    std::vector<std::size_t> sizes() const
    {
        std::vector<std::size_t> sizes;
        for (const UsbDeviceList &list : all())
            sizes.push_back(list.size());
        return sizes;
    }

private:
    mutable std::mutex m_mutex;
    std::vector<UsbDeviceList> m_lists;
};

enum class Access { Free, Denied, Held, InUse };

} // namespace

Q_DECLARE_METATYPE(Access)
Q_DECLARE_METATYPE(UsbShape)

class DiscoveryTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void facts_data();
    void facts();
    void aMuteDeviceIsAskedOnce();
    void onlyAskedVendorsInOrderOfLocation();
    void everyChangeIsReportedOnce();
    void nothingIsReportedAfterTheEnd();
    void aListenerMayEndTheWatch();
    void aSecondWatchReplacesTheFirst();
    void aComputerWithoutUsb();
};

void DiscoveryTests::facts_data()
{
    using Setting = UsbShape::AlternateSetting;
    const UsbShape plain;
    const UsbShape behindScanner{{{Setting{0, true, 255, 0}}, {Setting{1, false}, Setting{2}}}};
    const UsbShape twoPrinters{{{Setting{1}}, {Setting{2}}}};
    const Rows<bool, bool, Access, UsbShape, bool> row{"hasKernelDriver", "hasDeviceID", "access", "shape",
                                                       "deviceIDIsKnown"};
    row("driver bound, free", true, true, Access::Free, plain, true);
    row("driver bound, may not be opened", true, true, Access::Denied, plain, true);
    row("driver bound, in use by ourselves", true, true, Access::InUse, plain, true);
    row("no driver, free: the device is asked", false, true, Access::Free, plain, true);
    row("no driver, may not be opened", false, true, Access::Denied, plain, false);
    row("no driver, held by another program", false, true, Access::Held, plain, true);
    row("no driver, in use by ourselves", false, true, Access::InUse, plain, true);
    row("no driver, an alternate setting behind a scanner", false, true, Access::Held, behindScanner, true);
    row("no driver, two printers in one", false, true, Access::Held, twoPrinters, true);
    row("a device without an ID", true, false, Access::Free, plain, false);
}

void DiscoveryTests::facts()
{
    QFETCH(bool, hasKernelDriver);
    QFETCH(bool, hasDeviceID);
    QFETCH(Access, access);
    QFETCH(UsbShape, shape);
    QFETCH(bool, deviceIDIsKnown);

    UsbTestBed bed;
    ModelIdentity identity;
    identity.hasDeviceID = hasDeviceID;
    bed.bus.addPrinter(PrinterModel(identity), shape);
    bed.bus.setKernelDriver(hasKernelDriver);
    if (access == Access::Denied)
        bed.bus.deny();
    if (access == Access::Held)
        bed.bus.hold();
    bed.bus.plug();

    const auto list = [&] { return bed.await([&] { return bed.port.devices(ourVendors); }); };
    UsbDeviceList devices = list();
    std::unique_ptr<UsbConnection> connection;
    if (access == Access::InUse) {
        auto opened = bed.await([&] { return bed.port.open(devices.at(0)); });
        QVERIFY2(opened, whyNot(opened));
        connection = std::move(opened.value());
        devices = list();
    }

    QCOMPARE(devices.size(), 1U);
    const UsbDevice &device = devices.front();
    QCOMPARE(device.vendorID, identity.vendorID);
    QCOMPARE(device.productID, identity.productID);
    QCOMPARE(device.locationID, 0x01100000U);
    QCOMPARE(device.manufacturer, identity.manufacturer);
    QCOMPARE(device.product, identity.product());
    QCOMPARE(device.serialNumber, identity.serialNumber);
    QCOMPARE(device.ieee1284DeviceID, deviceIDIsKnown ? QString::fromUtf8(identity.deviceID()) : QString());
}

// It has many interfaces and answers on none; what was asked in vain is not asked again, unless it was refused.
void DiscoveryTests::aMuteDeviceIsAskedOnce()
{
    UsbTestBed bed;
    ModelIdentity mute;
    mute.answersDeviceID = false;
    bed.bus.addPrinter(PrinterModel(mute), {std::vector<UsbShape::Interface>(7, {UsbShape::AlternateSetting{}})});
    bed.bus.setKernelDriver(false);
    bed.bus.deny();
    bed.bus.plug();
    const auto list = [&] { return bed.await([&] { return bed.port.devices(ourVendors); }); };
    for (const int questions : {0, 1, 1}) {
        QCOMPARE(list().size(), 1U);
        QCOMPARE(bed.bus.deviceIDQuestions(), questions);
        bed.bus.permit();
    }
    bed.bus.replug();
    QCOMPARE(list().size(), 1U);
    QCOMPARE(bed.bus.deviceIDQuestions(), 2);
}

void DiscoveryTests::onlyAskedVendorsInOrderOfLocation()
{
    UsbTestBed bed;
    ModelIdentity stranger;
    stranger.vendorID = 0x1234;
    ModelIdentity sister;
    sister.vendorID = 0x6A1C;
    bed.bus.addPrinter();
    bed.bus.addPrinter(PrinterModel(stranger));
    bed.bus.addPrinter(PrinterModel(sister));
    for (const int printer : {2, 1, 0})
        bed.bus.plug(printer);
    const auto devices = bed.await([&] { return bed.port.devices(ourVendors); });
    QCOMPARE(devices.size(), 2U);
    QCOMPARE(devices[0].locationID, 0x01100000U);
    QCOMPARE(devices[1].locationID, 0x01300000U);
    QCOMPARE(devices[1].vendorID, sister.vendorID);
}

void DiscoveryTests::everyChangeIsReportedOnce()
{
    UsbTestBed bed;
    bed.bus.addPrinter();
    bed.bus.addPrinter();
    ReportedLists reports;
    std::vector<std::size_t> expected;
    const auto reported = [&](std::size_t size) {
        expected.push_back(size);
        return bed.runUntil([&] { return reports.sizes() == expected; });
    };

    bed.port.watch(ourVendors, reports.listener());
    QVERIFY(reported(0));
    bed.bus.plug(0);
    QVERIFY(reported(1));
    bed.bus.plug(1);
    QVERIFY(reported(2));
    bed.bus.unplug(0);
    QVERIFY(reported(1));
    QCOMPARE(reports.all().back().front().locationID, 0x01200000U);
    bed.bus.plug(0);
    QVERIFY(reported(2));
    QVERIFY(reports.all().back() == reports.all().at(2));
    bed.bus.unplug(0);
    QVERIFY(reported(1));
    bed.bus.unplug(1);
    QVERIFY(reported(0));
}

void DiscoveryTests::nothingIsReportedAfterTheEnd()
{
    UsbTestBed bed;
    bed.bus.addPrinter();
    ReportedLists reports;
    bed.port.watch(ourVendors, reports.listener());
    QVERIFY(bed.runUntil([&] { return !reports.all().empty(); }));
    bed.port.stopWatching();
    bed.bus.plug();
    ReportedLists witness;
    bed.port.watch(ourVendors, witness.listener());
    QVERIFY(bed.runUntil([&] { return witness.sizes() == std::vector<std::size_t>{1}; }));
    QCOMPARE(reports.sizes(), std::vector<std::size_t>{0});
}

void DiscoveryTests::aListenerMayEndTheWatch()
{
    UsbTestBed bed;
    bed.bus.addPrinter();
    std::atomic<int> calls = 0;
    bed.port.watch(ourVendors, [&](const UsbDeviceList &) {
        bed.port.stopWatching();
        ++calls;
    });
    QVERIFY(bed.runUntil([&] { return calls == 1; }));
    bed.bus.plug();
    const auto devices = bed.await([&] { return bed.port.devices(ourVendors); });
    QCOMPARE(devices.size(), 1U);
    QCOMPARE(calls, 1);
}

void DiscoveryTests::aSecondWatchReplacesTheFirst()
{
    UsbTestBed bed;
    bed.bus.addPrinter();
    ReportedLists first;
    ReportedLists second;
    bed.port.watch({0x6A1B}, first.listener());
    bed.port.watch({0x6A1C}, second.listener());
    QVERIFY(bed.runUntil([&] { return second.sizes() == std::vector<std::size_t>{0}; }));
    const auto before = first.sizes();
    bed.bus.plug();
    QVERIFY(bed.await([&] { return bed.port.devices({0x6A1B}); }).size() == 1);
    QCOMPARE(first.sizes(), before);
    QCOMPARE(second.sizes(), std::vector<std::size_t>{0});
}

// Where the machine that runs the tests has USB, it has no printer of this maker.
void DiscoveryTests::aComputerWithoutUsb()
{
    VirtualTime time;
    LibusbPort port(time);
    QVERIFY(port.devices(ourVendors).empty());
    QCOMPARE(port.open(UsbDevice{}).error().code, static_cast<int>(UsbErrorCode::NotFound));
    ReportedLists reports;
    port.watch(ourVendors, reports.listener());
    QVERIFY(time.runUntil([&] { return reports.sizes() == std::vector<std::size_t>{0}; }, {}));
}

QTEST_GUILESS_MAIN(DiscoveryTests)
#include "DiscoveryTests.moc"
