#include "PrintQueueBusyCheck.h"
#include "Rows.h"

using namespace Qt::Literals::StringLiterals;

using Queues = std::vector<PrintDestination>;

class BusyCheckTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsThePrintingQueue_data();
    void findsThePrintingQueue();
};

void BusyCheckTests::findsThePrintingQueue_data()
{
    const auto queue = [](const char *name, const char *state) {
        return PrintDestination{.name = name, .printerState = state};
    };
    const Queues printing{queue("QZ100_USB", "4")};
    const Rows<QString, Queues, bool, bool> row{"printerType", "queues", "busyForList", "busyForManualEntry"};
    row("no queue", u"QZ100"_s, {}, false, false);
    row("printing", u"QZ100"_s, printing, true, true);
    row("idle", u"QZ100"_s, {queue("QZ100_USB", "3")}, false, false);
    row("state longer than 4", u"QZ100"_s, {queue("QZ100_USB", "42")}, false, false);
    row("no state", u"QZ100"_s, {{.name = "QZ100_USB", .printerState = std::nullopt}}, false, false);
    row("another printer is printing", u"QZ200"_s, printing, false, false);
    row("the second queue is printing", u"QZ100"_s, {queue("QZ100_A", "3"), queue("QZ100_B", "4")}, true, true);
    row("name in another case", u"QZ100"_s, {queue("qz100_usb", "4")}, true, true);
    row("spaces are removed from the type", u"Q Z 100"_s, {queue("QZ100", "4")}, true, true);
    row("spaces stay in the name", u"QZ100"_s, {queue("Q Z 100", "4")}, false, false);
    row("series is cut off", u"M1234 series"_s, {queue("M1234 USB", "4")}, true, true);
    row("Series is not", u"M1234 Series"_s, {queue("M1234 USB", "4")}, false, false);
    row("only the first series counts", u"M1 series 2 series"_s, {queue("M1", "4")}, true, true);
    row("vendor in front, in lower case", u"quillmark QZ100"_s, printing, true, true);
    row("vendor in front, not in lower case", u"Quillmark QZ100"_s, printing, false, false);
    row("vendor twice", u"quillmark quillmark QZ100"_s, printing, true, true);
    row("nothing is left of the type", u"series"_s, printing, false, false);
    row("queue name beyond ASCII", u"QZ100"_s, {queue("QZ100_\xE5\x8A\x9E", "4")}, false, false);
    row("hyphen in the type only", u"QZ-100"_s, printing, false, true);
    row("hyphen in both", u"QZ-100"_s, {queue("QZ-100_USB", "4")}, true, false);
}

void BusyCheckTests::findsThePrintingQueue()
{
    QFETCH(QString, printerType);
    QFETCH(Queues, queues);
    QTEST(isWorking(queues, printerType, u"Quillmark"_s, BusyCheckVariant::List), "busyForList");
    QTEST(isWorking(queues, printerType, u"Quillmark"_s, BusyCheckVariant::ManualEntry), "busyForManualEntry");
}

QTEST_APPLESS_MAIN(BusyCheckTests)
#include "BusyCheckTests.moc"
