#include "UsbfsBed.h"
#include "LibusbPrinter.h"
#include "SystemTime.h"
#include "TestFrames.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class UsbfsBedTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answersThroughLibusb();
};

void UsbfsBedTest::answersThroughLibusb()
{
    SystemTime time;
    UsbfsBed bed(time);
    bed.addPrinter();
    bed.plug();
    LibusbPrinter printer;
    QCOMPARE(printer.open(), 0);
    QCOMPARE(bed.boundDriver(), u"usblp"_s);
    QCOMPARE(libusb_claim_interface(printer.handle(), 0), int(LIBUSB_ERROR_BUSY));
    QCOMPARE(libusb_kernel_driver_active(printer.handle(), 0), 1);
    QCOMPARE(libusb_detach_kernel_driver(printer.handle(), 0), 0);
    QCOMPARE(libusb_claim_interface(printer.handle(), 0), 0);
    QCOMPARE(printer.write(TestFrames::shortFrame(0xFF21)), 0);
    QByteArray reply;
    QCOMPARE(printer.read(reply), 0);
    QCOMPARE(reply.toHex(), QByteArray("00acff21000000000000000000000000"));
    libusb_release_interface(printer.handle(), 0);
    QCOMPARE(libusb_attach_kernel_driver(printer.handle(), 0), 0);
    QCOMPARE(bed.boundDriver(), u"usblp"_s);
    printer.close();
}

QTEST_GUILESS_MAIN(UsbfsBedTest)
#include "UsbfsBedTest.moc"
