#include "PrinterModel.h"
#include "PrinterCommand.h"
#include "TestFrames.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace TestFrames;
using namespace std::chrono_literals;

namespace
{
using Kind = InTransfer::Kind;

const PrinterModel::Instant start{std::chrono::hours(1)};

/// The transfers as text: "hexadecimal@milliseconds", "stall@...", "unplug@...".
QString told(const std::vector<InTransfer> &transfers)
{
    QStringList texts;
    for (const InTransfer &transfer : transfers) {
        const QString what = transfer.kind == Kind::Stall    ? u"stall"_s
                             : transfer.kind == Kind::Unplug ? u"unplug"_s
                                                             : QString::fromLatin1(transfer.bytes.toHex());
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
    void misbehavesInItsReply_data();
    void misbehavesInItsReply();
    void slicesAtRandom();
    void misbehavesWhileItIsTold_data();
    void misbehavesWhileItIsTold();
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
    QCOMPARE(printer.record().count(PrinterCommand::Configuration), 1);
    QVERIFY(printer.record().commands().empty());
}

void PrinterModelTest::misbehavesInItsReply_data()
{
    QTest::addColumn<PrinterFault>("fault");
    QTest::addColumn<QString>("reply");

    const auto row = [](const char *name, auto change, const QString &reply) {
        PrinterFault fault;
        fault.command = PrinterCommand::Capability;
        change(fault);
        QTest::newRow(name) << fault << reply;
    };
    const QString header = u"00acff81000100000000000000000000"_s;

    row("silence", [](auto &f) { f.silent = true; }, {});
    row(
        "wrong echo", [](auto &f) { f.echo = 0xFF82; }, u"00acff82000100000000000000000000"_s);
    row(
        "result", [](auto &f) { f.result = 0xFFFE; }, u"00acff81fffe00000000000000000000"_s);
    row(
        "length without data", [](auto &f) { f.lengthField = 0x0102; }, u"00acff81000101020000000000000000"_s);
    row(
        "data", [](auto &f) { f.data = "abc"; }, u"00acff81000100030000000000000000616263"_s);
    row(
        "announced, not sent",
        [](auto &f) {
            f.data = "abc";
            f.noData = true;
        },
        u"00acff81000100030000000000000000"_s);
    row(
        "short header", [](auto &f) { f.cutAt = 7; }, u"00acff81000100"_s);
    row("nothing, cut", [](auto &f) { f.cutAt = 0; }, {});
    row(
        "garbage ahead", [](auto &f) { f.garbage = "??"; }, u"3f3f"_s + header);
    row(
        "garbage behind", [](auto &f) { f.trailingGarbage = "??"; }, header + u"3f3f"_s);
    row(
        "delay", [](auto &f) { f.delay = 30ms; }, header + u"@30"_s);
    row(
        "slices",
        [](auto &f) {
            f.slices = {1, 0, 5};
            f.delay = 9ms;
            f.sliceDelay = 4ms;
        },
        u"00@9 @4 acff810001@4 00000000000000000000@4"_s);
    row(
        "slices past the end",
        [](auto &f) {
            f.slices = {15, 40, 1};
        },
        u"00acff810001000000000000000000 00"_s);
    row(
        "stall",
        [](auto &f) {
            f.stallIn = true;
            f.delay = 5ms;
        },
        u"stall@5"_s);
    row(
        "stall in the middle",
        [](auto &f) {
            f.cutAt = 4;
            f.stallIn = true;
        },
        u"00acff81 stall"_s);
    row(
        "unplug at once", [](auto &f) { f.unplugIn = 0; }, u"unplug"_s);
    row(
        "unplug in the middle",
        [](auto &f) {
            f.unplugIn = 2;
            f.sliceDelay = 3ms;
        },
        u"00ac unplug@3"_s);
}

void PrinterModelTest::misbehavesInItsReply()
{
    QFETCH(const PrinterFault, fault);
    PrinterScript script;
    script.faults = {fault};
    PrinterModel printer({}, script);
    QTEST(ask(printer, shortFrame(0xFF81)), "reply");
    QCOMPARE(ask(printer, shortFrame(0xFF21)), u"00acff21000000000000000000000000"_s);
}

void PrinterModelTest::slicesAtRandom()
{
    PrinterScript script;
    script.joinedFromStart = true;
    PrinterModel printer({}, script);
    const QString whole = ask(printer, shortFrame(0xFF0F));
    script.faults = {PrinterFault{}};
    script.faults.front().command = PrinterCommand::Address;
    for (quint32 seed = 0; seed < 50; ++seed) {
        script.faults.front().sliceSeed = seed;
        printer.setScript(script);
        const QString sliced = ask(printer, shortFrame(0xFF0F));
        QVERIFY(sliced.count(u' ') > 2);
        QCOMPARE(QString(sliced).remove(u' '), whole);
        QCOMPARE(ask(printer, shortFrame(0xFF0F)), sliced);
    }
}

void PrinterModelTest::misbehavesWhileItIsTold_data()
{
    QTest::addColumn<PrinterFault>("fault");
    QTest::addColumn<QList<int>>("chunks");
    QTest::addColumn<int>("accepted");
    QTest::addColumn<OutPlan::After>("after");

    const auto fault = [](auto change) {
        PrinterFault made;
        made.command = PrinterCommand::Configuration;
        change(made);
        return made;
    };
    using After = OutPlan::After;
    QTest::newRow("stall") << fault([](auto &f) { f.stallOut = true; }) << QList{267} << 0 << After::Stall;
    QTest::newRow("part") << fault([](auto &f) { f.acceptOnly = 100; }) << QList{267} << 100 << After::Nak;
    QTest::newRow("all") << fault([](auto &f) { f.acceptOnly = 267; }) << QList{267} << 267 << After::Complete;
    QTest::newRow("unplug") << fault([](auto &f) { f.unplugOut = 60; }) << QList{267} << 60 << After::Unplug;
    QTest::newRow("part, in chunks") << fault([](auto &f) { f.acceptOnly = 100; }) << QList{64, 64, 139} << 100
                                     << After::Nak;
    QTest::newRow("past, before the code came")
        << fault([](auto &f) { f.unplugOut = 10; }) << QList{30, 237} << 30 << After::Unplug;
}

void PrinterModelTest::misbehavesWhileItIsTold()
{
    QFETCH(const PrinterFault, fault);
    QFETCH(const QList<int>, chunks);
    PrinterScript script;
    script.faults = {fault};
    PrinterModel printer({}, script);
    QByteArray rest = configuration("Office", "secret-1");
    qsizetype accepted = 0;
    OutPlan plan;
    for (const int size : chunks) {
        const QByteArray chunk = rest.first(size);
        rest = rest.sliced(size);
        plan = printer.plan(chunk);
        printer.accept(chunk.first(plan.accept), start);
        accepted += plan.accept;
        if (plan.after != OutPlan::After::Complete)
            break;
    }
    QTEST(int(accepted), "accepted");
    QTEST(plan.after, "after");
    QCOMPARE(printer.record().count(PrinterCommand::Configuration), 1);
    printer.endExchange();
    QCOMPARE(printer.record().networkName.has_value(), accepted == 267);
    QCOMPARE(ask(printer, shortFrame(0xFF21)), u"00acff21000000000000000000000000"_s);
}

void PrinterModelTest::misbehavesAtTheRightTime()
{
    PrinterScript script;
    PrinterFault second;
    second.command = PrinterCommand::Capability;
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
    QCOMPARE(printer.record().count(PrinterCommand::Capability), 3);
    QCOMPARE(printer.record().frames.size(), 2U);
}

void PrinterModelTest::reportsEventsAfterACommand()
{
    PrinterScript script;
    script.events = {{BusEvent::Action::Hold, BusEvent::Cause{PrinterCommand::WakeUp, 2}, 5ms},
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
