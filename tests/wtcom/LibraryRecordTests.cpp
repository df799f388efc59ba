#include "LibraryLog.h"
#include "Rows.h"
#include "WTCDevice.h"
#include "wtc_extractPrinterType.h"

#include <QTemporaryDir>
#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;

/// The library's names of devices, and its log.
class LibraryRecordTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fromUsb()
    {
        const QString product = u"The Product"_s;
        const QString texts = u"usb://Maker/The%20Product?serial=S%2F1"_s;
        const QString named = u"usb://Quillmark/QZ100?serial=S%2F1"_s;
        eachRow(
            {
                {"long keys, other case", u" manufacturer : Quillmark ;MODEL: QZ100 "_s, u"QZ100"_s, u"Quillmark"_s,
                 named},
                {"not ASCII", u"MFG:墨;MDL:QZ1"_s, u"QZ1"_s, u"墨"_s, u"usb://%E5%A2%A8/QZ1?serial=S%2F1"_s},
                {"hidden characters", u"MFG:Q\u202e;MDL:QZ1\n2"_s, u"QZ1\\u000A2"_s, u"Q\\u202E"_s,
                 u"usb://Q%E2%80%AE/QZ1%0A2?serial=S%2F1"_s},
                {"no device ID", {}, product, u"Maker"_s, texts},
                {"garbage", u";;:;MDL;:x;"_s, product, u"Maker"_s, texts},
            },
            [&](const QString &deviceID, const QString &type, const QString &manufacturer, const QString &uri) {
                const WTCDevice device =
                    deviceFromUsb({0x6A1B, 0x0102, 0x01240000, u"Maker"_s, u" The Product "_s, u"S/1"_s, deviceID});
                QCOMPARE(device.printerType, type);
                QCOMPARE(device.manufacturer, manufacturer);
                QCOMPARE(device.URI, uri);
                QCOMPARE(device.serialNumber, u"S/1"_s);
                QCOMPARE(device.VID, 0x6A1B);
                QCOMPARE(device.PID, 0x0102);
                QCOMPARE(device.locationID, 0x01240000U);
            });
    }

    void extractedType()
    {
        eachRow(
            {
                {"maker and model", u"Quillmark QZ100 Series"_s, u"QZ100"_s},
                {"no digit", u"  Emulated Printer "_s, u"Emulated Printer"_s},
                {"blank", u" \n"_s, {}},
            },
            [&](const QString &name, const QString &type) { QCOMPARE(wtc_extractPrinterType(name), type); });
    }

    void maskChoosesTheLevels()
    {
        LibraryLog log;
        log.configure(m_path, LibraryLog::Error | LibraryLog::Info);
        log.write(LibraryLog::Info, u"kept"_s);
        log.write(LibraryLog::Debug, u"dropped"_s);
        log.configure(m_path, 255);
        log.write(LibraryLog::Debug, u"kept as well"_s);
        const QByteArrayList lines = content().trimmed().split('\n');
        QCOMPARE(lines.size(), 2);
        QVERIFY(lines[0].endsWith(" info kept"));
        QVERIFY(lines[1].endsWith(" debug kept as well"));
        QCOMPARE(QFile::permissions(m_path) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    }

    void theFileKeepsTheLatestLines()
    {
        LibraryLog log;
        log.configure(m_path, 255);
        const QString text(1000, u'x');
        for (int number = 0; number < 5000; ++number) {
            log.write(LibraryLog::Info, text + QString::number(number));
            const qint64 size = QFile(m_path).size();
            QVERIFY(size <= 2 * LibraryLog::bytesKept);
            QVERIFY(number < 2000 || size >= LibraryLog::bytesKept - 2 * text.size());
        }
        const QByteArrayList lines = content().trimmed().split('\n');
        for (qsizetype index = 0; index < lines.size(); ++index)
            QVERIFY(lines[index].startsWith("20") &&
                    lines[index].endsWith('x' + QByteArray::number(5000 - lines.size() + index)));
    }

    void worksWithoutAFile()
    {
        const QString pipe = m_folder.filePath(u"pipe"_s), victim = m_folder.filePath(u"victim"_s);
        const QString link = m_folder.filePath(u"link"_s);
        QCOMPARE(mkfifo(QFile::encodeName(pipe), 0600), 0);
        QVERIFY(QFile(victim).open(QIODevice::WriteOnly) && QFile::link(victim, link));
        for (const QString &path : {QString(), m_folder.filePath(u"none/library.log"_s), m_folder.path(), pipe, link}) {
            LibraryLog log;
            log.configure(path, 255);
            log.write(LibraryLog::Error, u"nowhere"_s);
            // A path that can be written takes over later.
            QFile::remove(m_path);
            log.configure(m_path, 255);
            log.write(LibraryLog::Error, u"here"_s);
            QVERIFY2(content().endsWith(" error here\n"), qPrintable(path));
        }
        QCOMPARE(QFile(victim).size(), 0);
    }

private:
    QByteArray content() const
    {
        QFile file(m_path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir m_folder;
    const QString m_path = m_folder.filePath(u"library.log"_s);
};

QTEST_GUILESS_MAIN(LibraryRecordTests)
#include "LibraryRecordTests.moc"
