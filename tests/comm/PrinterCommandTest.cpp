#include "LogCollector.h"
#include "PrinterBench.h"
#include "TextFormat.h"
#include "WTManager.h"

#include <QRandomGenerator>
#include <QTest>
#include <QThread>
#include <algorithm>
#include <mutex>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace
{

enum class Operation { WakeUp, Capability, Configuration, Address, InformationPage };

/// What keeps the program from the printer before the operation begins.
enum class Obstacle { None, Held, Denied, Absent };

constexpr quint16 commandOf(Operation operation)
{
    switch (operation) {
    case Operation::WakeUp:
        return 0xFF21;
    case Operation::Capability:
        return 0xFF81;
    case Operation::Configuration:
        return 0xFF80;
    case Operation::Address:
        return 0xFF0F;
    case Operation::InformationPage:
        return 0xFF84;
    }
    return 0;
}

/// What an operation's callback was given, as one text, and how it was called. Written on any thread.
class Answer
{
public:
    void give(const QString &text)
    {
        const std::lock_guard lock{m_mutex};
        ++m_calls;
        m_text = text;
        m_thread = QThread::currentThread();
    }
    void give(int status, const QString &text) { give(u"%1, %2"_s.arg(status).arg(text)); }
    void give(int status, quint16 result) { give(status, u"0x%1"_s.arg(result, 0, 16)); }

    int calls() const
    {
        const std::lock_guard lock{m_mutex};
        return m_calls;
    }
    QString text() const
    {
        const std::lock_guard lock{m_mutex};
        return m_text;
    }
    bool wasGivenOn(const QThread *thread) const
    {
        const std::lock_guard lock{m_mutex};
        return m_thread == thread;
    }

private:
    mutable std::mutex m_mutex;
    int m_calls = 0;
    QString m_text;
    QThread *m_thread = nullptr;
};

const QString networkName = u"Harbour guests, second floor"_s;
const QString networkPassword = u"correct horse battery staple"_s;

/// Whether a line shows a part of the network's password, as text or as bytes.
bool tellsSecret(const QStringList &lines)
{
    const QString part = networkPassword.sliced(4, 4);
    const QString bytes = QString::fromLatin1(part.toUtf8().toHex());
    return std::ranges::any_of(
        lines, [&](const QString &line) { return line.contains(part) || line.contains(bytes, Qt::CaseInsensitive); });
}

std::shared_ptr<Answer> start(Operation operation, const QString &uri)
{
    constexpr quint32 location = 0x01100000;
    const auto answer = std::make_shared<Answer>();
    const auto status = [answer](int code, quint16 result) { answer->give(code, result); };
    switch (operation) {
    case Operation::WakeUp:
        WTManager::wt_wakeUpPrinter(uri, location, [answer](bool success, const std::optional<QString> &message) {
            answer->give(success ? 1 : 0, message.value_or(u"no message"_s));
        });
        break;
    case Operation::Capability:
        WTManager::checkWiFiCapabilityFromPrinter(uri, location, status);
        break;
    case Operation::Configuration:
        WTManager::wifiConfigForPrinter(uri, location, networkName, networkPassword, status);
        break;
    case Operation::Address:
        WTManager::getIPAddressFromPrinter(uri, location,
                                           [answer](int code, const QString &text) { answer->give(code, text); });
        break;
    case Operation::InformationPage:
        WTManager::printingWiFiInfoFromPrinter(uri, location, u"QZ100"_s, status);
        break;
    }
    return answer;
}

/// `fault`, with one more field of it set.
template <typename Field, typename Value>
PrinterFault with(Field PrinterFault::*field, const Value &value, PrinterFault fault = {})
{
    fault.*field = value;
    return fault;
}

PrinterScript scriptWith(Operation operation, PrinterFault fault)
{
    PrinterScript script;
    fault.command = commandOf(operation);
    script.joinedFromStart = true;
    script.faults.push_back(fault);
    return script;
}

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
    void logsTheExchange_data();
    void logsTheExchange();
    void refusesAWakeUpWithoutUriAtOnce();
    void triesACapabilityCheckWithoutUri();
    void warnsOfALocationOfZeroOnly();
    void sendsNoConfigurationThatDoesNotFit();

private:
    /// Runs the operation to its answer; no answer is an empty one.
    std::shared_ptr<Answer> perform(Operation operation)
    {
        const auto answer = start(operation, m_bench.uri());
        m_bench.runUntil([&] { return answer->calls() > 0; });
        return answer;
    }

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
    const auto answer = perform(operation);
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
    const auto answer = perform(Operation::Address);
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
        const auto answer = perform(Operation::Address);
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
    QCOMPARE(perform(operation)->calls(), 1);
    QTEST(static_cast<int>(std::chrono::round<std::chrono::seconds>(m_bench.time.now() - before).count()), "seconds");
}

void PrinterCommandTest::answersASuccessfulConfigurationAfterAPause()
{
    PrinterScript slowToJoin;
    slowToJoin.joinTime = 20s;
    m_bench.reset(slowToJoin);
    const auto before = m_bench.time.now();
    QCOMPARE(perform(Operation::Configuration)->text(), u"0, 0x1"_s);
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

void PrinterCommandTest::logsTheExchange_data()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<PrinterFault>("fault");
    QTest::addColumn<QStringList>("lines");

    const auto row = [](const char *name, Operation operation, const PrinterFault &fault, const QStringList &lines) {
        QTest::newRow(name) << operation << fault << lines;
    };
    const auto described = [](const QByteArray &hex) { return describeBytes(QByteArray::fromHex(hex)); };
    const QString frame = u"{length = 59, bytes = 0x"_s + u"1b252d31323334355840504a4c20454e ... 252d313233343558}"_s;
    const QString mismatch = u"warning: CMD not matched! msg:acl 失败，失败原因：cmd not matched! "_s;

    row("wake-up", Operation::WakeUp, {},
        {u"info: send ACL:0xFF21, uri:URI, data:"_s + frame,
         u"info: 返回 ACL:0xFF21, headData:"_s + described("00acff21000000000000000000000000"),
         u"info: ACL:0xFF21, uri:URI, 最终返回 👉 data:(null)"_s});
    row("capability", Operation::Capability, {},
        {u"info: send ACL:0xFF81, uri:URI, data:"_s + frame,
         u"info: 返回 ACL:0xFF81, headData:"_s + described("00acff81000100000000000000000000"),
         u"info: send_cmd:0xFF81 header data:"_s + described("00acff81000100000000000000000000"),
         u"info: recv_cmd:0xFF81 result:0x1"_s, u"info: cb_success!"_s});
    row("capability, another command", Operation::Capability, with(&PrinterFault::echo, 0xFF82),
        {u"info: send ACL:0xFF81, uri:URI, data:"_s + frame,
         u"info: 返回 ACL:0xFF81, headData:"_s + described("00acff82000100000000000000000000"),
         mismatch + u"send:0xFF81, recv:0xFF82"_s, u"info: send_cmd:0xFF81 header data:(null)"_s,
         u"error: no header data!"_s});
    row("capability, a stall", Operation::Capability, with(&PrinterFault::stallIn, true),
        {u"info: send ACL:0xFF81, uri:URI, data:"_s + frame, u"info: 返回 ACL:0xFF81, headData:(null)"_s,
         u"error: FF81 返回错误：WTCOM"_s, u"info: send_cmd:0xFF81 header data:(null)"_s, u"error: no header data!"_s});
    row("configuration", Operation::Configuration, {},
        {u"info: send ACL:0xFF80, uri:URI, data:"_s + QString{frame}.replace(u"59"_s, u"267"_s),
         u"info: recv ACL:0xFF80, header:"_s + described("00acff80000100000000000000000000")});
    row("address", Operation::Address, with(&PrinterFault::data, "10.0.0.7"_ba.leftJustified(16, '\0')),
        {u"info: send ACL:0xFF0F, uri:URI, data:"_s + frame,
         u"info: recv ACL:0xFF0F, header:"_s + described("00acff0f000100100000000000000000"), u"info: 0xFF0F:1"_s,
         u"info: IP:10.0.0.7"_s, u"info: IPv4:10.0.0.7, IPv6:, unstatus:"_s});
    row("information page", Operation::InformationPage, {},
        {u"info: send ACL:0xFF84, uri:URI, data:"_s + frame,
         u"info: 返回 ACL:0xFF84, headData:"_s + described("00acff84000000000000000000000000"),
         u"info: ACL:0xFF84, uri:URI, 最终返回 👉 data:(null) error:(null)"_s,
         u"info: send_cmd:0xFF84 header data:"_s + described("00acff84000000000000000000000000"),
         u"info: recv_cmd:0xFF84 result:0x0"_s, u"info: cb_success!"_s});
}

void PrinterCommandTest::logsTheExchange()
{
    QFETCH(Operation, operation);
    QFETCH(PrinterFault, fault);
    QFETCH(QStringList, lines);
    m_bench.reset(scriptWith(operation, fault));
    const LogCollector log;
    QCOMPARE(perform(operation)->calls(), 1);
    QCOMPARE(log.lines(), lines.replaceInStrings(u"URI"_s, m_bench.uri()));
}

void PrinterCommandTest::refusesAWakeUpWithoutUriAtOnce()
{
    const LogCollector log;
    const auto answer = start(Operation::WakeUp, u" "_s);
    QCOMPARE(answer->calls(), 1);
    QCOMPARE(answer->text(), u"0, invalid URI!"_s);
    QCOMPARE(log.lines(), QStringList{u"error: invalid URI!"_s});
}

void PrinterCommandTest::triesACapabilityCheckWithoutUri()
{
    const LogCollector log;
    const auto answer = start(Operation::Capability, {});
    QCOMPARE(answer->calls(), 0);
    QVERIFY(m_bench.runUntil([&] { return answer->calls() > 0; }));
    QCOMPARE(answer->text(), u"1, 0x0"_s);
    QCOMPARE(log.lines().constFirst(), u"error: checkWiFiCapabilityFromPrinter, printerURI:  locationID:0x1100000"_s);
}

void PrinterCommandTest::warnsOfALocationOfZeroOnly()
{
    const LogCollector log;
    bool awake = false;
    WTManager::wt_wakeUpPrinter(m_bench.uri(), 0, [&](bool success, const auto &) { awake = success; });
    QVERIFY(m_bench.runUntil([&] { return awake; }));
    QCOMPARE(log.lines().constFirst(), u"warning: invalid locationID!"_s);
}

void PrinterCommandTest::sendsNoConfigurationThatDoesNotFit()
{
    const LogCollector log;
    const int framesBefore = m_bench.bed.record().count(0xFF80);
    const QString longPassword = networkPassword + networkPassword;
    Answer nameless;
    Answer tooLong;
    WTManager::wifiConfigForPrinter(m_bench.uri(), 1, u" \n"_s, networkPassword,
                                    [&](int status, quint16 result) { nameless.give(status, result); });
    WTManager::wifiConfigForPrinter(m_bench.uri(), 1, networkName, longPassword,
                                    [&](int status, quint16 result) { tooLong.give(status, result); });
    QVERIFY(m_bench.runUntil([&] { return tooLong.calls() > 0; }));

    QCOMPARE(tooLong.text(), u"1, 0x0"_s);
    QVERIFY(!tooLong.wasGivenOn(thread()));
    QCOMPARE(nameless.calls(), 0);
    QCOMPARE(m_bench.bed.record().count(0xFF80), framesBefore);
    const QStringList lines = log.lines();
    QCOMPARE(lines.size(), 2);
    QCOMPARE(lines.first(), u"error: dirty data👉🏻ssid: \n"_s);
    QVERIFY(lines.last().startsWith("error: "_L1));
    QVERIFY(!tellsSecret(lines));
}

QTEST_GUILESS_MAIN(PrinterCommandTest)
#include "PrinterCommandTest.moc"
