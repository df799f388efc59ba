#include "InfoList.h"
#include "RunBed.h"
#include "SystemTime.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// One run in real time: over real libusb, with real threads, waiting real seconds.
class RunInRealTimeTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fromWakeUpToAddress()
    {
        InfoList::setResourceFolder(QStringLiteral(WT_RESOURCE_FOLDER));
        SystemTime time;
        const RunBed::Wait wait = [](const UsbfsBed &, const std::function<bool()> &done) {
            return QTest::qWaitFor(done, 30'000);
        };
        RunBed bed(time, wait, {.addressTime = std::chrono::seconds(6)}, {.model = u"QZ200"_s});
        const WTPrinterPtr printer = bed.findPrinter();
        QVERIFY(printer);
        bed.push(printer, u"Home"_s, u"secret pass"_s);
        QCOMPARE(bed.screenAtEnd(), &bed.complete());
        QCOMPARE(printer->ip, u"192.168.1.77"_s);
        QCOMPARE(bed.bus().record().commands(), (std::vector<quint16>{0xFF21, 0xFF81, 0xFF80, 0xFF0F, 0xFF0F}));
        QVERIFY(bed.bus().record().allSound());
        QCOMPARE(bed.bus().record().networkName, "Home");
        QCOMPARE(bed.bus().record().password, "secret pass");
    }
};

QTEST_MAIN(RunInRealTimeTests)
#include "RunInRealTimeTests.moc"
