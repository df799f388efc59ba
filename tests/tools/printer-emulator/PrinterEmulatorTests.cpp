#include "TestFrames.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <csignal>

using namespace Qt::Literals::StringLiterals;
using namespace TestFrames;

/// The program printer-emulator around a plain libusb program, each in a process of its own.
class PrinterEmulatorTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void keepsTheFrames();
    void followsItsScript_data();
    void followsItsScript();
    void refusesABadScript_data();
    void refusesABadScript();
    void forwardsTheEnd_data();
    void forwardsTheEnd();
    void handsSignalsOn();
    void outlivesAnUnplugInASessionOfItsOwn();

private:
    struct Outcome {
        int status = -1;
        QString output;
        QString errors;
    };
    void start(const QStringList &options, const QStringList &command);
    Outcome finish();
    Outcome run(const QStringList &options, const QStringList &command);
    QString write(const QString &name, const QByteArray &content) const;
    static QString hex(const QByteArray &frame) { return QString::fromLatin1(frame.toHex()); }

    const QString m_client = QStringLiteral(WT_USB_CLIENT);
    std::optional<QTemporaryDir> m_folder;
    QProcess m_process;
};

void PrinterEmulatorTests::init()
{
    m_folder.emplace();
    QVERIFY(QDir(m_folder->path()).mkdir(u"tmp"_s));
}

void PrinterEmulatorTests::cleanup()
{
    QVERIFY2(QDir(m_folder->filePath(u"tmp"_s)).isEmpty(), "left something in the temporary folder");
    m_folder.reset();
}

void PrinterEmulatorTests::start(const QStringList &options, const QStringList &command)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"TMPDIR"_s, m_folder->filePath(u"tmp"_s));
    m_process.setProcessEnvironment(environment);
    m_process.start(QStringLiteral(WT_PRINTER_EMULATOR),
                    QStringList{u"--usbfs"_s} + options + QStringList{u"--"_s} + command);
}

PrinterEmulatorTests::Outcome PrinterEmulatorTests::finish()
{
    m_process.waitForFinished();
    return {m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1,
            QString::fromUtf8(m_process.readAllStandardOutput()).trimmed(),
            QString::fromUtf8(m_process.readAllStandardError()).trimmed()};
}

PrinterEmulatorTests::Outcome PrinterEmulatorTests::run(const QStringList &options, const QStringList &command)
{
    start(options, command);
    return finish();
}

QString PrinterEmulatorTests::write(const QString &name, const QByteArray &content) const
{
    QFile file(m_folder->filePath(name));
    return file.open(QFile::WriteOnly) && file.write(content) == content.size() ? file.fileName() : QString();
}

void PrinterEmulatorTests::keepsTheFrames()
{
    const QString frames = write(u"frames"_s, "before\n");
    const QByteArray wakeUp = shortFrame(0xFF21);
    QByteArray wrong = shortFrame(0xFF81);
    wrong[49] = 'w';
    Outcome outcome = run({u"--frames"_s, frames}, {m_client, hex(wakeUp), hex(configuration("Office", "secret-1"))});
    QCOMPARE(outcome.output, u"00acff21000000000000000000000000\n00acff80000100000000000000000000"_s);
    QCOMPARE(outcome.errors, QString());
    QCOMPARE(outcome.status, 0);
    outcome = run({u"--frames"_s, frames}, {m_client, hex(wrong)});
    QCOMPARE(outcome.output, u"LIBUSB_ERROR_TIMEOUT"_s);
    QCOMPARE(outcome.errors, u"printer-emulator: frame ff81 is wrong: at 49: not zero in the header"_s);

    QFile file(frames);
    QVERIFY(file.open(QFile::ReadOnly));
    const QByteArray expected = "before\n" + wakeUp.toHex().toUpper() + '\n' +
                                configuration("Office", "secret-1").toHex().toUpper() + '\n' + wrong.toHex().toUpper() +
                                '\n';
    QCOMPARE(file.readAll(), expected);
}

void PrinterEmulatorTests::followsItsScript_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("output");
    const QString wakeUpReply = u"00acff21000000000000000000000000"_s;
    QTest::newRow("result") << QByteArray(R"({"capabilityResult": 65534})")
                            << wakeUpReply + u"\n00acff81fffe00000000000000000000"_s;
    QTest::newRow("data in slices") << QByteArray(
                                           R"({"faults": [{"command": "FF81", "data": "ABCD", "slices": [17]}]})")
                                    << wakeUpReply + u"\n00acff81000100020000000000000000ab"_s;
    QTest::newRow("unplug in the reply") << QByteArray(R"({"faults": [{"command": "FF21", "unplugIn": 0}]})")
                                         << u"LIBUSB_ERROR_NO_DEVICE"_s;
    QTest::newRow("not permitted, by default to root either")
        << QByteArray(R"({"events": [{"action": "deny"}]})") << u"LIBUSB_ERROR_ACCESS"_s;
    QTest::newRow("held by another") << QByteArray(R"({"events": [{"action": "hold"}]})") << u"LIBUSB_ERROR_BUSY"_s;
    QTest::newRow("plugged later") << QByteArray(R"({"plugged": false, "events": [{"action": "plug", "delay": 300}]})")
                                   << wakeUpReply + u"\n00acff81000100000000000000000000"_s;
}

void PrinterEmulatorTests::followsItsScript()
{
    QFETCH(const QByteArray, script);
    const Outcome outcome = run({u"--script"_s, write(u"script.json"_s, script)},
                                {m_client, hex(shortFrame(0xFF21)), hex(shortFrame(0xFF81))});
    QCOMPARE(outcome.errors, QString());
    QTEST(outcome.output, "output");
}

void PrinterEmulatorTests::refusesABadScript_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("complaint");
    QTest::newRow("no JSON") << QByteArray("{") << u"at byte 1"_s;
    QTest::newRow("no object") << QByteArray("[]") << u"an object is wanted"_s;
    QTest::newRow("unknown field") << QByteArray(R"({"joinTme": 5})") << u"script.joinTme: unknown field"_s;
    QTest::newRow("out of range") << QByteArray(R"({"capabilityResult": 65536})") << u"script.capabilityResult: "_s;
    QTest::newRow("half a byte") << QByteArray(R"({"faults": [{"garbage": "ABC"}]})") << u"faults[0].garbage: bytes"_s;
    QTest::newRow("no code") << QByteArray(R"({"faults": [{}, {"command": "FF"}]})") << u"faults[1].command: "_s;
    QTest::newRow("no action") << QByteArray(R"({"events": [{"action": "jump"}]})") << u"events[0].action: one of"_s;
    QTest::newRow("deep down") << QByteArray(R"({"events": [{"after": {"code": "FF21"}}]})")
                               << u"events[0].after.code: unknown field"_s;
}

void PrinterEmulatorTests::refusesABadScript()
{
    QFETCH(const QByteArray, script);
    QFETCH(const QString, complaint);
    const Outcome outcome = run({u"--script"_s, write(u"script.json"_s, script)}, {u"true"_s});
    QCOMPARE(outcome.status, 125);
    QVERIFY2(outcome.errors.contains(complaint), qPrintable(outcome.errors));
}

void PrinterEmulatorTests::forwardsTheEnd_data()
{
    QTest::addColumn<QStringList>("command");
    QTest::addColumn<int>("status");
    QTest::newRow("status") << QStringList{u"sh"_s, u"-c"_s, u"exit 42"_s} << 42;
    QTest::newRow("signal") << QStringList{u"sh"_s, u"-c"_s, u"kill -USR1 $$"_s} << 128 + SIGUSR1;
    QTest::newRow("not there") << QStringList{u"/not/there"_s} << 127;
    QTest::newRow("no program") << QStringList{u"/"_s} << 126;
}

void PrinterEmulatorTests::forwardsTheEnd()
{
    QFETCH(const QStringList, command);
    QTEST(run({}, command).status, "status");
}

void PrinterEmulatorTests::handsSignalsOn()
{
    start({}, {u"sh"_s, u"-c"_s, u"trap 'echo told; exit 3' TERM; echo ready; while :; do read line; done"_s});
    QVERIFY(m_process.waitForReadyRead());
    m_process.terminate();
    const Outcome outcome = finish();
    QCOMPARE(outcome.output, u"ready\ntold"_s);
    QCOMPARE(outcome.status, 3);
}

void PrinterEmulatorTests::outlivesAnUnplugInASessionOfItsOwn()
{
    // A session leader's terminal would be the printer's node, and its hang-up the leader's end.
    const QString script = write(u"script.json"_s, R"({"faults": [{"command": "FF81", "unplugIn": 3}]})");
    const Outcome outcome = run({u"--script"_s, script}, {u"setsid"_s, u"-w"_s, m_client, hex(shortFrame(0xFF21)),
                                                          hex(shortFrame(0xFF81)), hex(shortFrame(0xFF21))});
    QCOMPARE(outcome.output, u"00acff21000000000000000000000000\n00acff\nLIBUSB_ERROR_NO_DEVICE"_s);
    QCOMPARE(outcome.status, 0);
}

QTEST_GUILESS_MAIN(PrinterEmulatorTests)
#include "PrinterEmulatorTests.moc"
