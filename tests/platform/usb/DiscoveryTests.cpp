#include "Locked.h"
#include "Rows.h"
#include "UsbTestBed.h"

using namespace Qt::Literals::StringLiterals;

namespace
{

const std::vector<quint16> ourVendors{0x6A1B, 0x6A1C};

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

    // What printers do wrong with the two bytes ahead of the ID, which give its length with themselves.
    void aDeviceIDWithAnyLength()
    {
        eachRow(
            {
                {"more comes than is announced", {}, QByteArray("MDL:QZ200;")},
                {"bytes the other way round", 0x4500, QByteArray()},
            },
            [&](const std::optional<quint16> &announced, const QByteArray &behind) {
                UsbTestBed bed;
                ModelIdentity identity;
                identity.announcedIDLength = announced;
                identity.behindDeviceID = behind;
                bed.bus.addPrinter(PrinterModel(identity));
                bed.bus.setKernelDriver(false);
                bed.bus.plug();
                const UsbDeviceList devices = bed.await([&] { return bed.port.devices(ourVendors); });
                QCOMPARE(devices.at(0).ieee1284DeviceID, QString::fromUtf8(identity.deviceID()));
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

    // The thirteenth device hangs on a hub in port 13. The list goes by the place, whatever came first.
    void printersAtTheirPlaces()
    {
        UsbTestBed bed;
        std::vector<int> printers;
        for (int number = 1; number <= 13; ++number)
            printers.push_back(bed.bus.addPrinter());
        for (const int index : {1, 12, 0})
            bed.bus.plug(printers[index]);
        const UsbDeviceList devices = bed.await([&] { return bed.port.devices(ourVendors); });
        QList<quint32> places;
        for (const UsbDevice &device : devices)
            places.append(device.locationID);
        QCOMPARE(places, QList<quint32>({0x01100000, 0x01200000, 0x01D10000}));
        QCOMPARE(devices.back().serialNumber, ModelIdentity().serialNumber);
    }

    void tellsOnlyWhatChanged()
    {
        UsbTestBed bed;
        ModelIdentity foreign;
        foreign.vendorID = 0x1234;
        const int ours = bed.bus.addPrinter(), other = bed.bus.addPrinter(PrinterModel(foreign));
        const int second = bed.bus.addPrinter();
        Locked<QList<std::size_t>> told;
        const auto tell = [&](const UsbDeviceList &list) {
            told.change([&](auto &sizes) { sizes.append(list.size()); });
        };
        bed.port.watch(ourVendors, tell);
        QList<std::size_t> expected{0};
        for (const int printer : {ours, other, second}) {
            QTRY_COMPARE(told.read([](const auto &sizes) { return sizes; }), expected);
            bed.bus.plug(printer);
            if (printer != other)
                expected.append(std::size_t(expected.size()));
        }
        QTRY_COMPARE(told.read([](const auto &sizes) { return sizes; }), expected);
        bed.port.stopWatching();
    }
};

QTEST_GUILESS_MAIN(DiscoveryTests)
#include "DiscoveryTests.moc"
