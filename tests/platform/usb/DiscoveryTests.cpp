#include "Rows.h"
#include "UsbTestBench.h"

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

    UsbTestBench bench;
    ModelIdentity identity;
    identity.hasDeviceID = hasDeviceID;
    bench.bed.addPrinter(PrinterModel(identity), shape);
    bench.bed.setKernelDriver(hasKernelDriver);
    if (access == Access::Denied)
        bench.bed.deny();
    if (access == Access::Held)
        bench.bed.hold();
    bench.bed.plug();

    const auto list = [&] { return bench.await([&] { return bench.port.devices(ourVendors); }); };
    UsbDeviceList devices = list();
    std::unique_ptr<UsbConnection> connection;
    if (access == Access::InUse) {
        auto opened = bench.await([&] { return bench.port.open(devices.at(0)); });
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
    UsbTestBench bench;
    ModelIdentity mute;
    mute.answersDeviceID = false;
    bench.bed.addPrinter(PrinterModel(mute), {std::vector<UsbShape::Interface>(7, {UsbShape::AlternateSetting{}})});
    bench.bed.setKernelDriver(false);
    bench.bed.deny();
    bench.bed.plug();
    const auto list = [&] { return bench.await([&] { return bench.port.devices(ourVendors); }); };
    for (const int questions : {0, 1, 1}) {
        QCOMPARE(list().size(), 1U);
        QCOMPARE(bench.bed.deviceIDQuestions(), questions);
        bench.bed.permit();
    }
    bench.bed.replug();
    QCOMPARE(list().size(), 1U);
    QCOMPARE(bench.bed.deviceIDQuestions(), 2);
}

void DiscoveryTests::onlyAskedVendorsInOrderOfLocation()
{
    UsbTestBench bench;
    ModelIdentity stranger;
    stranger.vendorID = 0x1234;
    ModelIdentity sister;
    sister.vendorID = 0x6A1C;
    bench.bed.addPrinter();
    bench.bed.addPrinter(PrinterModel(stranger));
    bench.bed.addPrinter(PrinterModel(sister));
    for (const int printer : {2, 1, 0})
        bench.bed.plug(printer);
    const auto devices = bench.await([&] { return bench.port.devices(ourVendors); });
    QCOMPARE(devices.size(), 2U);
    QCOMPARE(devices[0].locationID, 0x01100000U);
    QCOMPARE(devices[1].locationID, 0x01300000U);
    QCOMPARE(devices[1].vendorID, sister.vendorID);
}

void DiscoveryTests::everyChangeIsReportedOnce()
{
    UsbTestBench bench;
    bench.bed.addPrinter();
    bench.bed.addPrinter();
    ReportedLists reports;
    std::vector<std::size_t> expected;
    const auto reported = [&](std::size_t size) {
        expected.push_back(size);
        return bench.runUntil([&] { return reports.sizes() == expected; });
    };

    bench.port.watch(ourVendors, reports.listener());
    QVERIFY(reported(0));
    bench.bed.plug(0);
    QVERIFY(reported(1));
    bench.bed.plug(1);
    QVERIFY(reported(2));
    bench.bed.unplug(0);
    QVERIFY(reported(1));
    QCOMPARE(reports.all().back().front().locationID, 0x01200000U);
    bench.bed.plug(0);
    QVERIFY(reported(2));
    QVERIFY(reports.all().back() == reports.all().at(2));
    bench.bed.unplug(0);
    QVERIFY(reported(1));
    bench.bed.unplug(1);
    QVERIFY(reported(0));
}

void DiscoveryTests::nothingIsReportedAfterTheEnd()
{
    UsbTestBench bench;
    bench.bed.addPrinter();
    ReportedLists reports;
    bench.port.watch(ourVendors, reports.listener());
    QVERIFY(bench.runUntil([&] { return !reports.all().empty(); }));
    bench.port.stopWatching();
    bench.bed.plug();
    ReportedLists witness;
    bench.port.watch(ourVendors, witness.listener());
    QVERIFY(bench.runUntil([&] { return witness.sizes() == std::vector<std::size_t>{1}; }));
    QCOMPARE(reports.sizes(), std::vector<std::size_t>{0});
}

void DiscoveryTests::aListenerMayEndTheWatch()
{
    UsbTestBench bench;
    bench.bed.addPrinter();
    std::atomic<int> calls = 0;
    bench.port.watch(ourVendors, [&](const UsbDeviceList &) {
        bench.port.stopWatching();
        ++calls;
    });
    QVERIFY(bench.runUntil([&] { return calls == 1; }));
    bench.bed.plug();
    const auto devices = bench.await([&] { return bench.port.devices(ourVendors); });
    QCOMPARE(devices.size(), 1U);
    QCOMPARE(calls, 1);
}

void DiscoveryTests::aSecondWatchReplacesTheFirst()
{
    UsbTestBench bench;
    bench.bed.addPrinter();
    ReportedLists first;
    ReportedLists second;
    bench.port.watch({0x6A1B}, first.listener());
    bench.port.watch({0x6A1C}, second.listener());
    QVERIFY(bench.runUntil([&] { return second.sizes() == std::vector<std::size_t>{0}; }));
    const auto before = first.sizes();
    bench.bed.plug();
    QVERIFY(bench.await([&] { return bench.port.devices({0x6A1B}); }).size() == 1);
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
