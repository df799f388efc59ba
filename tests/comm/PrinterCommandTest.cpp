#include "LogCollector.h"
#include "PrinterBench.h"
#include "PrinterOperation.h"
#include "WTManager.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace
{

/// What keeps the program from the printer before the operation begins.
enum class Obstacle { None, Held, Denied, Absent };

} // namespace

/// The printer commands through the real library and real libusb, against the emulated printer.
class PrinterCommandTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { m_bench.reset(); }
    void answersWhateverThePrinterDoes_data();
    void answersWhateverThePrinterDoes();
    void readsAddressReplies_data();
    void readsAddressReplies();
    void readsRepliesInAnySlices();
    void waitsAsLongAsItsCommandMayTake_data();
    void waitsAsLongAsItsCommandMayTake();
    void answersASuccessfulConfigurationAfterAPause();
    void sendsTheInformationPageInTheModelsDialect_data();
    void sendsTheInformationPageInTheModelsDialect();

private:
    PrinterBench m_bench;
};

void PrinterCommandTest::initTestCase()
{
    QVERIFY(m_bench.discover());
    QCOMPARE(m_bench.uri(), u"usb://Quillmark/QZ100?serial=QM0001"_s);
}

void PrinterCommandTest::answersWhateverThePrinterDoes_data()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<PrinterFault>("fault");
    QTest::addColumn<Obstacle>("obstacle");
    QTest::addColumn<QString>("answer");

    struct Case {
        const char *name;
        PrinterFault fault;
        Obstacle obstacle;
        /// The answers of wake-up, capability, configuration, address and information page.
        std::array<const char *, 5> answers;
    };
    constexpr const char *awake = "1, no message";
    constexpr const char *failed = "1, 0x0";
    constexpr const char *unreachable = "2, 0x1f";
    constexpr const char *noData = "7, acl 获取到的数据为空!!!!!";
    constexpr auto none = Obstacle::None;
    const Case cases[] = {
        {"sound", {}, none, {awake, "0, 0x1", "0, 0x1", "0, 192.168.1.77", "0, 0x0"}},
        {"another result",
         with(&PrinterFault::result, 0xFFFB),
         none,
         {awake, "0, 0xfffb", "1, 0xfffb", "0, 192.168.1.77", "0, 0xfffb"}},
        {"wrong echo", with(&PrinterFault::echo, 0xFF22), none, {awake, failed, failed, noData, failed}},
        {"silent", with(&PrinterFault::silent, true), none, {awake, failed, failed, noData, failed}},
        {"short header", with(&PrinterFault::cutAt, 10), none, {awake, failed, failed, noData, failed}},
        {"garbage ahead", with(&PrinterFault::garbage, "garbage!"), none, {awake, failed, failed, noData, failed}},
        {"stalls the frame", with(&PrinterFault::stallOut, true), none, {awake, failed, failed, noData, failed}},
        {"stalls the reply", with(&PrinterFault::stallIn, true), none, {awake, failed, failed, noData, failed}},
        {"takes half the frame", with(&PrinterFault::acceptOnly, 30), none, {awake, failed, failed, noData, failed}},
        {"unplugged in the frame",
         with(&PrinterFault::unplugOut, 30),
         none,
         {awake, failed, unreachable, noData, failed}},
        {"unplugged in the reply",
         with(&PrinterFault::unplugIn, 8),
         none,
         {awake, failed, unreachable, noData, failed}},
        {"held by another", {}, Obstacle::Held, {awake, failed, unreachable, noData, failed}},
        {"not permitted", {}, Obstacle::Denied, {awake, failed, unreachable, noData, failed}},
        {"not on the bus", {}, Obstacle::Absent, {awake, failed, unreachable, noData, failed}},
    };
    constexpr std::array operations{
        std::pair{Operation::WakeUp, "wake-up"},
        std::pair{Operation::Capability, "capability"},
        std::pair{Operation::Configuration, "configuration"},
        std::pair{Operation::Address, "address"},
        std::pair{Operation::InformationPage, "information page"},
    };
    for (const Case &each : cases) {
        for (std::size_t i = 0; i < operations.size(); ++i) {
            QTest::addRow("%s, %s", operations[i].second, each.name)
                << operations[i].first << each.fault << each.obstacle << QString::fromUtf8(each.answers[i]);
        }
    }
}

void PrinterCommandTest::answersWhateverThePrinterDoes()
{
    QFETCH(Operation, operation);
    QFETCH(PrinterFault, fault);
    QFETCH(Obstacle, obstacle);
    m_bench.reset(scriptWith(operation, fault));
    if (obstacle == Obstacle::Held)
        m_bench.bed.hold();
    else if (obstacle == Obstacle::Denied)
        m_bench.bed.deny();
    else if (obstacle == Obstacle::Absent)
        m_bench.bed.unplug();

    const LogCollector log;
    const auto answer = m_bench.perform(operation);
    QTEST(answer->text(), "answer");
    QCOMPARE(answer->calls(), 1);
    QVERIFY(!tellsSecret(log.lines()));
    QCOMPARE(answer->wasGivenOn(thread()), operation != Operation::Configuration);
}

void PrinterCommandTest::readsAddressReplies_data()
{
    QTest::addColumn<PrinterFault>("fault");
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QStringList>("errors");

    const auto row = [](const char *name, const PrinterFault &fault, const QString &answer, const QStringList &errors) {
        QTest::newRow(name) << fault << answer << errors;
    };
    const QString noData = u"7, acl 获取到的数据为空!!!!!"_s;
    const QStringList noDataLine{u"error: Null recv data"_s};
    row("zero result, data announced", with(&PrinterFault::result, 0, with(&PrinterFault::data, QByteArray(176, 'x'))),
        noData, noDataLine);
    row("no data announced", with(&PrinterFault::data, QByteArray{}), noData, noDataLine);
    row("announced data never comes", with(&PrinterFault::noData, true), noData, noDataLine);
    row("15 bytes", with(&PrinterFault::data, "10.0.0.7"_ba.leftJustified(15, '\0')),
        u"5, acl 获取数据失败，失败原因：数据长度不够！"_s, {u"error: data.length < 16"_s});
    row("16 bytes", with(&PrinterFault::data, "10.0.0.7"_ba.leftJustified(16, '\0')), u"0, 10.0.0.7"_s, {});
    row("0.0.0.0", with(&PrinterFault::data, "0.0.0.0"_ba.leftJustified(16, '\0')), u"0, 0.0.0.0"_s, {});
    row("the two length bytes are added",
        with(&PrinterFault::lengthField, 0x0110, with(&PrinterFault::data, "10.0.0.7"_ba.leftJustified(17, '\0'))),
        u"0, 10.0.0.7"_s, {});
    row("no address", with(&PrinterFault::data, QByteArray(176, 'x')), u"6, "_s, {u"error: 🤢🤢🤢"_s});
    row("80 bytes, an IPv6 address cut off",
        with(&PrinterFault::data, QByteArray(48, '\0') + "fe80::1"_ba.leftJustified(32, '\0')), u"6, "_s,
        {u"error: 🤢🤢🤢"_s});
    row("510 bytes", with(&PrinterFault::lengthField, 0xFFFF, with(&PrinterFault::data, QByteArray(510, '\xFF'))),
        u"6, "_s, {u"error: 🤢🤢🤢"_s});
}

void PrinterCommandTest::readsAddressReplies()
{
    QFETCH(PrinterFault, fault);
    m_bench.reset(scriptWith(Operation::Address, fault));
    const LogCollector log;
    const auto answer = m_bench.perform(Operation::Address);
    QTEST(answer->text(), "answer");
    QCOMPARE(answer->calls(), 1);
    QTEST(log.lines().filter(u"error: "_s), "errors");
}

void PrinterCommandTest::readsRepliesInAnySlices()
{
    for (int turn = 0; turn < 10; ++turn) {
        const quint32 seed = QRandomGenerator::global()->generate();
        m_bench.reset(
            scriptWith(Operation::Address, with(&PrinterFault::sliceSeed, seed, with(&PrinterFault::sliceDelay, 3ms))));
        const auto answer = m_bench.perform(Operation::Address);
        QVERIFY2(answer->text() == "0, 192.168.1.77"_L1, qPrintable(u"seed %1: %2"_s.arg(seed).arg(answer->text())));
    }
}

void PrinterCommandTest::waitsAsLongAsItsCommandMayTake_data()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<int>("seconds");
    QTest::newRow("wake-up") << Operation::WakeUp << 6;
    QTest::newRow("capability") << Operation::Capability << 60;
    QTest::newRow("configuration") << Operation::Configuration << 180;
    QTest::newRow("address") << Operation::Address << 60;
    QTest::newRow("information page") << Operation::InformationPage << 60;
}

void PrinterCommandTest::waitsAsLongAsItsCommandMayTake()
{
    QFETCH(Operation, operation);
    m_bench.reset(scriptWith(operation, with(&PrinterFault::silent, true)));
    const auto before = m_bench.time.now();
    QCOMPARE(m_bench.perform(operation)->calls(), 1);
    QTEST(static_cast<int>(std::chrono::round<std::chrono::seconds>(m_bench.time.now() - before).count()), "seconds");
}

void PrinterCommandTest::answersASuccessfulConfigurationAfterAPause()
{
    PrinterScript slowToJoin;
    slowToJoin.joinTime = 20s;
    m_bench.reset(slowToJoin);
    const auto before = m_bench.time.now();
    QCOMPARE(m_bench.perform(Operation::Configuration)->text(), u"0, 0x1"_s);
    const auto duration = m_bench.time.now() - before;
    QVERIFY(duration >= 25s && duration < 26s);
    const PrinterRecord told = m_bench.bed.record();
    QCOMPARE(told.networkName, networkName.toUtf8());
    QCOMPARE(told.password, networkPassword.toUtf8());
}

void PrinterCommandTest::sendsTheInformationPageInTheModelsDialect_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<bool>("hasCatalogue");
    QTest::addColumn<QByteArray>("frame");

    const QByteArray newDialect = QByteArray::fromHex("00acff84000200000000000000000000");
    const QByteArray oldDialect = newDialect + QByteArray::fromHex("0002");
    QTest::newRow("new") << u"QZ100"_s << true << newDialect;
    QTest::newRow("old") << u"QZ150"_s << true << oldDialect;
    QTest::newRow("not in the catalogue") << u"QZ999"_s << true << newDialect;
    QTest::newRow("no catalogue") << u"QZ100"_s << false << oldDialect;
}

void PrinterCommandTest::sendsTheInformationPageInTheModelsDialect()
{
    QFETCH(QString, model);
    QFETCH(bool, hasCatalogue);
    QFETCH(QByteArray, frame);
    auto &manager = WTManager::shared();
    const QJsonArray catalogue = manager.installFileList();
    if (!hasCatalogue)
        manager.setInstallFileList({});

    Answer answer;
    WTManager::printingWiFiInfoFromPrinter(m_bench.uri(), 1, model,
                                           [&](int status, quint16 result) { answer.give(status, result); });
    QVERIFY(m_bench.runUntil([&] { return answer.calls() > 0; }));
    manager.setInstallFileList(catalogue);

    QCOMPARE(answer.text(), u"0, 0x0"_s);
    const PrinterRecord told = m_bench.bed.record();
    QCOMPARE(told.frames.back().bytes.toHex(), "1b252d31323334355840504a4c20454e544552204c414e47554147453d41434c0d0a" +
                                                   frame.toHex() + "1b252d313233343558");
}

QTEST_GUILESS_MAIN(PrinterCommandTest)
#include "PrinterCommandTest.moc"
