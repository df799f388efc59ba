#include "Rows.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <csignal>

using namespace Qt::Literals::StringLiterals;

/// The program printer-emulator around another, each in a process of its own.
class PrinterEmulatorTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder.emplace();
        QVERIFY(QDir(m_folder->path()).mkdir(u"tmp"_s));
    }

    void cleanup()
    {
        QVERIFY2(QDir(m_folder->filePath(u"tmp"_s)).isEmpty(), "left something in the temporary folder");
        m_folder.reset();
    }

    void refusesABadScript()
    {
        eachRow(
            {
                {"unknown field", QByteArray(R"({"joinTme": 5})"), u"script.joinTme: unknown field"_s},
                {"half a byte", QByteArray(R"({"faults": [{"garbage": "ABC"}]})"), u"faults[0].garbage: bytes"_s},
                {"no action", QByteArray(R"({"events": [{"action": "jump"}]})"), u"events[0].action: one of"_s},
                {"deep down", QByteArray(R"({"events": [{"after": {"code": "FF21"}}]})"),
                 u"events[0].after.code: unknown field"_s},
            },
            [&](const QByteArray &script, const QString &complaint) {
                const Outcome outcome = run({u"--script"_s, write(u"script.json"_s, script)}, {u"true"_s});
                QCOMPARE(outcome.status, 125);
                QVERIFY2(outcome.errors.contains(complaint), qPrintable(outcome.errors));
            });
    }

    void forwardsTheEnd()
    {
        eachRow(
            {
                {"status", QStringList{u"sh"_s, u"-c"_s, u"exit 42"_s}, 42},
                {"signal", QStringList{u"sh"_s, u"-c"_s, u"kill -USR1 $$"_s}, 128 + SIGUSR1},
                {"not there", QStringList{u"/not/there"_s}, 127},
            },
            [&](const QStringList &command, int status) { QCOMPARE(run({}, command).status, status); });
    }

    void handsSignalsOn()
    {
        start({}, {u"sh"_s, u"-c"_s, u"trap 'echo told; exit 3' TERM; echo ready; while :; do read line; done"_s});
        QVERIFY(m_process.waitForReadyRead());
        m_process.terminate();
        const Outcome outcome = finish();
        QCOMPARE(outcome.output, u"ready\ntold"_s);
        QCOMPARE(outcome.status, 3);
    }

private:
    struct Outcome {
        int status = -1;
        QString output;
        QString errors;
    };

    void start(const QStringList &options, const QStringList &command)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"TMPDIR"_s, m_folder->filePath(u"tmp"_s));
        m_process.setProcessEnvironment(environment);
        m_process.start(QStringLiteral(WT_PRINTER_EMULATOR),
                        QStringList{u"--usbfs"_s} + options + QStringList{u"--"_s} + command);
    }

    Outcome finish()
    {
        m_process.waitForFinished();
        return {m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1,
                QString::fromUtf8(m_process.readAllStandardOutput()).trimmed(),
                QString::fromUtf8(m_process.readAllStandardError()).trimmed()};
    }

    Outcome run(const QStringList &options, const QStringList &command)
    {
        start(options, command);
        return finish();
    }

    QString write(const QString &name, const QByteArray &content) const
    {
        QFile file(m_folder->filePath(name));
        return file.open(QFile::WriteOnly) && file.write(content) == content.size() ? file.fileName() : QString();
    }

    std::optional<QTemporaryDir> m_folder;
    QProcess m_process;
};

QTEST_GUILESS_MAIN(PrinterEmulatorTests)
#include "PrinterEmulatorTests.moc"
