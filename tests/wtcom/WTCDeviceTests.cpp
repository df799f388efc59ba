#include "WTCDevice.h"
#include "wtc_extractPrinterType.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class WTCDeviceTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fromUsb_data();
    void fromUsb();
    void extractedType_data();
    void extractedType();
};

void WTCDeviceTests::fromUsb_data()
{
    QTest::addColumn<QString>("deviceID");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("manufacturer");
    QTest::addColumn<QString>("uri");

    const QString texts = u"usb://Maker/The%20Product?serial=S%2F1"_s;
    QTest::newRow("short keys") << u"MFG:Quillmark;MDL:QZ100 Series;CLS:PRINTER;"_s << u"QZ100 Series"_s
                                << u"Quillmark"_s << u"usb://Quillmark/QZ100%20Series?serial=S%2F1"_s;
    QTest::newRow("long keys, spaces, other case") << u" manufacturer : Quillmark ;MODEL: QZ100 "_s << u"QZ100"_s
                                                   << u"Quillmark"_s << u"usb://Quillmark/QZ100?serial=S%2F1"_s;
    QTest::newRow("a colon in a value") << u"MFG:Q;MDL:A:B"_s << u"A:B"_s << u"Q"_s << u"usb://Q/A%3AB?serial=S%2F1"_s;
    QTest::newRow("not ASCII") << u"MFG:墨;MDL:QZ1"_s << u"QZ1"_s << u"墨"_s << u"usb://%E5%A2%A8/QZ1?serial=S%2F1"_s;
    QTest::newRow("only a model") << u"MDL:QZ100;"_s << u"QZ100"_s << u"Maker"_s << u"usb://Maker/QZ100?serial=S%2F1"_s;
    QTest::newRow("empty values") << u"MFG:;MDL: ;"_s << u"The Product"_s << u"Maker"_s << texts;
    QTest::newRow("no device ID") << QString() << u"The Product"_s << u"Maker"_s << texts;
    QTest::newRow("garbage") << u";;:;MDL;:x;"_s << u"The Product"_s << u"Maker"_s << texts;
}

void WTCDeviceTests::fromUsb()
{
    QFETCH(QString, deviceID);
    const WTCDevice device =
        deviceFromUsb({0x6A1B, 0x0102, 0x01240000, u"Maker"_s, u" The Product "_s, u"S/1"_s, deviceID});
    QTEST(device.printerType, "type");
    QTEST(device.manufacturer, "manufacturer");
    QTEST(device.URI, "uri");
    QCOMPARE(device.serialNumber, u"S/1"_s);
    QCOMPARE(device.VID, 0x6A1B);
    QCOMPARE(device.PID, 0x0102);
    QCOMPARE(device.locationID, 0x01240000U);
}

void WTCDeviceTests::extractedType_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("type");
    QTest::newRow("maker and model") << u"Quillmark QZ100 Series"_s << u"QZ100"_s;
    QTest::newRow("the first of two") << u"QZ100 QZ200"_s << u"QZ100"_s;
    QTest::newRow("bare model") << u"QZ100"_s << u"QZ100"_s;
    QTest::newRow("tabs and line ends") << u"\tQuillmark\n QZ100-W\n"_s << u"QZ100-W"_s;
    QTest::newRow("no digit") << u"  Emulated Printer "_s << u"Emulated Printer"_s;
    QTest::newRow("blank") << u" \n"_s << QString();
}

void WTCDeviceTests::extractedType()
{
    QFETCH(QString, name);
    QFETCH(QString, type);
    QCOMPARE(wtc_extractPrinterType(name), type);
    QCOMPARE(wtc_extractPrinterType(type), type);
}

QTEST_GUILESS_MAIN(WTCDeviceTests)
#include "WTCDeviceTests.moc"
