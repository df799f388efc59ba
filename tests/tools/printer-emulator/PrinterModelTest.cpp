#include "PrinterModel.h"
#include "EmulatedCommand.h"
#include "TestFrames.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace TestFrames;
using namespace std::chrono_literals;

namespace
{
const PrinterModel::Instant start{std::chrono::hours(1)};

/// The transfers as text: "hexadecimal@milliseconds".
QString told(const std::vector<InTransfer> &transfers)
{
    QStringList texts;
    for (const InTransfer &transfer : transfers) {
        const QString what = QString::fromLatin1(transfer.bytes.toHex());
        texts.append(transfer.delay == 0ms ? what : u"%1@%2"_s.arg(what).arg(transfer.delay.count()));
    }
    return texts.join(u' ');
}

QString ask(PrinterModel &printer, const QByteArray &frame, PrinterModel::Instant now = start)
{
    const OutPlan plan = printer.plan(frame);
    return told(printer.accept(QByteArrayView(frame).first(plan.accept), now).transfers);
}
} // namespace

class PrinterModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answersEachCommand_data();
    void answersEachCommand();
    void joinsInItsTime();
    void staysAwayWhenItDidNotJoin();
    void ignoresWhatIsWrong();
    void misbehavesAtTheRightTime();
    void reportsEventsAfterACommand();
};

void PrinterModelTest::answersEachCommand_data()
{
    QTest::addColumn<QByteArray>("frame");
    QTest::addColumn<QString>("reply");

    QTest::newRow("wake-up") << shortFrame(0xFF21) << u"00acff21000000000000000000000000"_s;
    QTest::newRow("capability") << shortFrame(0xFF81) << u"00acff81000100000000000000000000"_s;
    QTest::newRow("configuration") << configuration("Office", "secret-1") << u"00acff80000100000000000000000000@2000"_s;
    QTest::newRow("no address yet") << shortFrame(0xFF0F) << u"00acff0f000000000000000000000000"_s;
    QTest::newRow("page") << informationPageWithoutPayload() << u"00acff84000000000000000000000000"_s;
    QTest::newRow("page, with payload") << shortFrame(0xFF84, QByteArray("\x00\x02", 2))
                                        << u"00acff84000000000000000000000000"_s;
}

void PrinterModelTest::answersEachCommand()
{
    QFETCH(const QByteArray, frame);
    PrinterScript script;
    script.joinTime = 2s;
    PrinterModel printer({}, script);
    QTEST(ask(printer, frame), "reply");
    QVERIFY(printer.record().allSound());
    QCOMPARE(printer.record().frames.size(), 1U);
    QCOMPARE(printer.record().frames.front().bytes, frame);
}

void PrinterModelTest::joinsInItsTime()
{
    PrinterScript script;
    script.joinTime = 2s;
    script.addressTime = 3s;
    script.ipv6 = "fe80::1";
    script.secondIpv6 = "2001:db8::7";
    PrinterModel printer({}, script);
    ask(printer, configuration("Office", "secret-1"));
    QCOMPARE(printer.record().networkName, QByteArray("Office"));
    QCOMPARE(printer.record().password, QByteArray("secret-1"));

    const QString none = u"00acff0f000000000000000000000000"_s;
    QCOMPARE(ask(printer, shortFrame(0xFF0F), start + 4999ms), none);

    const QByteArray reply = QByteArray::fromHex(ask(printer, shortFrame(0xFF0F), start + 5s).toLatin1());
    QCOMPARE(reply.first(16).toHex(), QByteArray("00acff0f000100b00000000000000000"));
    const QByteArray data = reply.sliced(16);
    QCOMPARE(data.size(), 176);
    QCOMPARE(data.first(48), QByteArray("192.168.1.77").leftJustified(48, '\0'));
    QCOMPARE(data.sliced(48, 64), QByteArray("fe80::1").leftJustified(64, '\0'));
    QCOMPARE(data.sliced(112), QByteArray("2001:db8::7").leftJustified(64, '\0'));
}

void PrinterModelTest::staysAwayWhenItDidNotJoin()
{
    PrinterScript script;
    script.configurationResult = 7;
    PrinterModel printer({}, script);
    QCOMPARE(ask(printer, configuration("Office", "wrong")), u"00acff80000700000000000000000000"_s);
    QCOMPARE(ask(printer, shortFrame(0xFF0F), start + 1h), u"00acff0f000000000000000000000000"_s);
}

void PrinterModelTest::ignoresWhatIsWrong()
{
    PrinterModel printer;
    QByteArray frame = configuration("Office", "secret-1");
    frame[50 + 33] = 4;
    QCOMPARE(ask(printer, frame), QString());
    QVERIFY(!printer.record().allSound());
    QVERIFY(!printer.record().networkName);
    QCOMPARE(printer.record().count(EmulatedCommand::Configuration), 1);
    QVERIFY(printer.record().commands().empty());
}

void PrinterModelTest::misbehavesAtTheRightTime()
{
    PrinterScript script;
    PrinterFault second;
    second.command = EmulatedCommand::Capability;
    second.occurrence = 2;
    second.silent = true;
    PrinterFault first = second;
    first.occurrence = 1;
    first.silent = false;
    first.stallOut = true;
    script.faults = {second, first};
    PrinterModel printer({}, script);
    const QByteArray frame = shortFrame(0xFF81);
    QCOMPARE(printer.plan(frame).after, OutPlan::After::Stall);
    QCOMPARE(ask(printer, frame), QString());
    QVERIFY(!ask(printer, frame).isEmpty());
    QCOMPARE(printer.record().count(EmulatedCommand::Capability), 3);
    QCOMPARE(printer.record().frames.size(), 2U);
}

void PrinterModelTest::reportsEventsAfterACommand()
{
    PrinterScript script;
    script.events = {{BusEvent::Action::Hold, BusEvent::Cause{EmulatedCommand::WakeUp, 2}, 5ms},
                     {BusEvent::Action::Unplug, std::nullopt, 0ms}};
    PrinterModel printer({}, script);
    QVERIFY(printer.accept(shortFrame(0xFF21), start).events.empty());
    const std::vector<BusEvent> events = printer.accept(shortFrame(0xFF21), start).events;
    QCOMPARE(events.size(), 1U);
    QCOMPARE(events.front().action, BusEvent::Action::Hold);
    QCOMPARE(events.front().delay, 5ms);
}

QTEST_GUILESS_MAIN(PrinterModelTest)
#include "PrinterModelTest.moc"
