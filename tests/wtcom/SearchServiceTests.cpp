#include "UsbTestBed.h"
#include "WTCServer.h"

#include <QTest>
#include <mutex>

using namespace Qt::Literals::StringLiterals;

namespace
{

using DeviceList = std::vector<WTCDevice>;

class Delegate : public WTCServerDelegate
{
public:
    void refreshUSBPrinterList(const DeviceList &devices) override
    {
        const std::lock_guard lock(m_mutex);
        m_reports.push_back(devices);
    }

    std::vector<DeviceList> reports() const
    {
        const std::lock_guard lock(m_mutex);
        return m_reports;
    }

private:
    mutable std::mutex m_mutex;
    std::vector<DeviceList> m_reports;
};

} // namespace

class SearchServiceTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theDelegateIsToldTheCompleteList()
    {
        UsbTestBed bed;
        ModelIdentity second;
        second.model = u"QZ200 Series"_s;
        second.serialNumber = u"QM 2"_s;
        second.vendorID = 0x6A1C;
        bed.bus.addPrinter();
        bed.bus.addPrinter(PrinterModel(second));
        bed.bus.deny(1);
        WTCServer::usePorts(bed.port, bed.time);
        Delegate delegate;
        WTCServer &server = WTCServer::sharedWithDelegate(&delegate, 255, {}, {}, {});
        QCOMPARE(&server, &WTCServer::shared());
        const auto isTold = [&](std::size_t reports, std::size_t devices) {
            return bed.runUntil(
                [&] { return delegate.reports().size() == reports && delegate.reports().back().size() == devices; });
        };

        server.registerUSBSearchServiceWithVIDs({u"0x6A1B"_s, u"0x6A1C"_s});
        QVERIFY(isTold(1, 0));
        bed.bus.plug(1);
        QVERIFY(isTold(2, 1));
        bed.bus.plug(0);
        QVERIFY(isTold(3, 2));
        const DeviceList devices = delegate.reports().back();
        QCOMPARE(devices[0].URI, u"usb://Quillmark/QZ100?serial=QM0001"_s);
        QCOMPARE(devices[0].VID, 0x6A1B);
        QCOMPARE(devices[1].URI, u"usb://Quillmark/QZ200%20Series?serial=QM%202"_s);
        QCOMPARE(devices[1].printerType, u"QZ200 Series"_s);
        QCOMPARE(devices[1].locationID, 0x01200000U);
        bed.bus.unplug(1);
        QVERIFY(isTold(4, 1));

        server.removeUSBSearchService();
        bed.bus.unplug(0);
        server.registerUSBSearchServiceWithVIDs({u"0x6A1B"_s});
        QVERIFY(isTold(5, 0));
        server.removeUSBSearchService();
        WTCServer::sharedWithDelegate(nullptr, 0, {}, {}, {});
    }
};

QTEST_GUILESS_MAIN(SearchServiceTests)
#include "SearchServiceTests.moc"
