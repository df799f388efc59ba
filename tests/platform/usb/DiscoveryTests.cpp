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

enum class Access { Free, Denied, Held };

} // namespace

class DiscoveryTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void facts()
    {
        using Setting = UsbShape::AlternateSetting;
        const UsbShape plain;
        const UsbShape behindScanner{{{Setting{0, true, 255, 0}}, {Setting{1, false}, Setting{2}}}};
        eachRow(
            {
                {"driver bound, free", true, true, Access::Free, plain, true},
                {"driver bound, may not be opened", true, true, Access::Denied, plain, true},
                {"no driver, free: the device is asked", false, true, Access::Free, plain, true},
                {"no driver, may not be opened", false, true, Access::Denied, plain, false},
                {"no driver, an alternate setting behind a scanner", false, true, Access::Held, behindScanner, true},
                {"a device without an ID", true, false, Access::Free, plain, false},
            },
            [&](bool hasKernelDriver, bool hasDeviceID, const Access &access, const UsbShape &shape,
                bool deviceIDIsKnown) {
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

                const UsbDeviceList devices = bed.await([&] { return bed.port.devices(ourVendors); });
                QCOMPARE(devices.size(), 1U);
                const UsbDevice &device = devices.front();
                QCOMPARE(device.vendorID, identity.vendorID);
                QCOMPARE(device.productID, identity.productID);
                QCOMPARE(device.locationID, 0x01100000U);
                QCOMPARE(device.manufacturer, identity.manufacturer);
                QCOMPARE(device.product, identity.product());
                QCOMPARE(device.serialNumber, identity.serialNumber);
                QCOMPARE(device.ieee1284DeviceID, deviceIDIsKnown ? QString::fromUtf8(identity.deviceID()) : QString());
            });
    }

    // It has many interfaces and answers on none; what was asked in vain is not asked again, unless it was refused.
    void aMuteDeviceIsAskedOnce()
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

    void onlyAskedVendorsInOrderOfLocation()
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

    void everyChangeIsReportedOnce()
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
};

QTEST_GUILESS_MAIN(DiscoveryTests)
#include "DiscoveryTests.moc"
