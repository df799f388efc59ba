#include "Rows.h"
#include "WTCDevice.h"
#include "wtc_extractPrinterType.h"

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
    const QString product = u"The Product"_s;
    const QString texts = u"usb://Maker/The%20Product?serial=S%2F1"_s;
    const QString named = u"usb://Quillmark/QZ100?serial=S%2F1"_s;
    const Rows<QString, QString, QString, QString> row{"deviceID", "type", "manufacturer", "uri"};
    row("short keys", u"MFG:Quillmark;MDL:QZ100;CLS:PRINTER;"_s, u"QZ100"_s, u"Quillmark"_s, named);
    row("long keys, other case", u" manufacturer : Quillmark ;MODEL: QZ100 "_s, u"QZ100"_s, u"Quillmark"_s, named);
    row("a colon in a value", u"MFG:Q;MDL:A:B"_s, u"A:B"_s, u"Q"_s, u"usb://Q/A%3AB?serial=S%2F1"_s);
    row("not ASCII", u"MFG:墨;MDL:QZ1"_s, u"QZ1"_s, u"墨"_s, u"usb://%E5%A2%A8/QZ1?serial=S%2F1"_s);
    row("hidden characters", u"MFG:Q\u202e;MDL:QZ1\n2"_s, u"QZ1\\u000A2"_s, u"Q\\u202E"_s,
        u"usb://Q%E2%80%AE/QZ1%0A2?serial=S%2F1"_s);
    row("only a model", u"MDL:QZ100;"_s, u"QZ100"_s, u"Maker"_s, u"usb://Maker/QZ100?serial=S%2F1"_s);
    row("empty values", u"MFG:;MDL: ;"_s, product, u"Maker"_s, texts);
    row("no device ID", {}, product, u"Maker"_s, texts);
    row("garbage", u";;:;MDL;:x;"_s, product, u"Maker"_s, texts);
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
    const Rows<QString, QString> row{"name", "type"};
    row("maker and model", u"Quillmark QZ100 Series"_s, u"QZ100"_s);
    row("the first of two", u"QZ100 QZ200"_s, u"QZ100"_s);
    row("tabs and line ends", u"\tQuillmark\n QZ100-W\n"_s, u"QZ100-W"_s);
    row("no digit", u"  Emulated Printer "_s, u"Emulated Printer"_s);
    row("blank", u" \n"_s, {});
}

void WTCDeviceTests::extractedType()
{
    QFETCH(QString, name);
    QTEST(wtc_extractPrinterType(name), "type");
}

QTEST_GUILESS_MAIN(WTCDeviceTests)
#include "WTCDeviceTests.moc"
