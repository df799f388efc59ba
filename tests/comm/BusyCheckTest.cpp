#include "PrintQueueBusyCheck.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

using Queues = std::vector<PrintDestination>;

class BusyCheckTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsThePrintingQueue_data();
    void findsThePrintingQueue();
};

void BusyCheckTest::findsThePrintingQueue_data()
{
    QTest::addColumn<QString>("printerType");
    QTest::addColumn<Queues>("queues");
    QTest::addColumn<bool>("busyForList");
    QTest::addColumn<bool>("busyForManualEntry");

    const auto row = [](const char *name, const QString &printerType, const Queues &queues, bool list, bool manual) {
        QTest::newRow(name) << printerType << queues << list << manual;
    };
    const auto same = [&](const char *name, const QString &printerType, const Queues &queues, bool busy) {
        row(name, printerType, queues, busy, busy);
    };
    const auto queue = [](const char *name, const std::optional<QByteArray> &state) {
        return PrintDestination{.name = name, .printerState = state};
    };

    same("no queue", u"QZ100"_s, {}, false);
    same("printing", u"QZ100"_s, {queue("QZ100_USB", "4")}, true);
    same("idle", u"QZ100"_s, {queue("QZ100_USB", "3")}, false);
    same("stopped", u"QZ100"_s, {queue("QZ100_USB", "5")}, false);
    same("state longer than 4", u"QZ100"_s, {queue("QZ100_USB", "42")}, false);
    same("no state", u"QZ100"_s, {queue("QZ100_USB", std::nullopt)}, false);
    same("another printer is printing", u"QZ100"_s, {queue("QZ200_USB", "4")}, false);
    same("the second matching queue is printing", u"QZ100"_s, {queue("QZ100_A", "3"), queue("QZ100_B", "4")}, true);
    same("name in another case", u"QZ100"_s, {queue("qz100_usb", "4")}, true);
    same("spaces are removed from the type only", u"Q Z 100"_s, {queue("QZ100", "4"), queue("Q Z 100", "3")}, true);
    same("series is cut off", u"M1234 series"_s, {queue("M1234 USB", "4")}, true);
    same("Series is not", u"M1234 Series"_s, {queue("M1234 USB", "4")}, false);
    same("only the first series counts", u"M1 series 2 series"_s, {queue("M1", "4")}, true);
    same("vendor in front, in lower case", u"quillmark QZ100"_s, {queue("QZ100_USB", "4")}, true);
    same("vendor in front, not in lower case", u"Quillmark QZ100"_s, {queue("QZ100_USB", "4")}, false);
    same("vendor twice", u"quillmark quillmark QZ100"_s, {queue("QZ100_USB", "4")}, true);
    same("nothing is left of the type", u"series"_s, {queue("QZ100_USB", "4")}, false);
    same("queue name beyond ASCII", u"QZ100"_s, {queue("QZ100_\xE5\x8A\x9E", "4")}, false);
    row("hyphen in the type only", u"QZ-100"_s, {queue("QZ100_USB", "4")}, false, true);
    row("hyphen in both", u"QZ-100"_s, {queue("QZ-100_USB", "4")}, true, false);
}

void BusyCheckTest::findsThePrintingQueue()
{
    QFETCH(QString, printerType);
    QFETCH(Queues, queues);
    QTEST(isWorking(queues, printerType, u"Quillmark"_s, BusyCheckVariant::List), "busyForList");
    QTEST(isWorking(queues, printerType, u"Quillmark"_s, BusyCheckVariant::ManualEntry), "busyForManualEntry");
}

QTEST_APPLESS_MAIN(BusyCheckTest)
#include "BusyCheckTest.moc"
