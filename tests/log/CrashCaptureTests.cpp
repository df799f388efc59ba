#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <csignal>

using namespace Qt::Literals::StringLiterals;

namespace
{

/// How a program ended.
struct End {
    QProcess::ExitStatus kind;
    int number;
    bool operator==(const End &) const = default;
};

const End endsWell{QProcess::NormalExit, 0};
const End carriesOn{QProcess::NormalExit, 7};
End dies(int signal)
{
    return {QProcess::CrashExit, signal};
}

constexpr int patience = 30'000;
constexpr int linesBeforeHeapCrash = 200;

/// Sanitizers stop a program at its first real fault, before any signal.
constexpr bool faultsReachTheProgram =
#ifdef WT_SANITIZED
    false;
#else
    true;
#endif

} // namespace

Q_DECLARE_METATYPE(End)

/// Runs a program that crashes on command and looks at the log it leaves.
class CrashCaptureTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reports_data();
    void reports();
    void reportsAFaultInsideTheAllocator_data();
    void reportsAFaultInsideTheAllocator();
    void leavesTheReportInTheLogFile_data();
    void leavesTheReportInTheLogFile();
    void flushesAtTheEnd_data();
    void flushesAtTheEnd();

private:
    End run(const QString &crash, const QString &state, const QString &folder = {});

    QString m_output;
    qint64 m_process = 0;
};

End CrashCaptureTests::run(const QString &crash, const QString &state, const QString &folder)
{
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"ASAN_OPTIONS"_s, u"detect_leaks=0"_s);
    program.setProcessEnvironment(environment);
    program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    program.start(QStringLiteral(CRASHING_PROGRAM),
                  QStringList{crash, state} + (folder.isEmpty() ? QStringList() : QStringList(folder)));
    program.waitForStarted();
    m_process = program.processId();
    if (!program.waitForFinished(patience))
        qCritical("the program hangs");
    m_output = QString::fromUtf8(program.readAllStandardOutput());
    return {program.exitStatus(), program.exitCode()};
}

void CrashCaptureTests::reports_data()
{
    QTest::addColumn<QString>("crash");
    QTest::addColumn<QString>("state");
    QTest::addColumn<QString>("reason");
    QTest::addColumn<int>("reports");
    QTest::addColumn<End>("end");
    const auto row = [](const char *crash, const char *state, const char *reason, int reports, End end) {
        QTest::addRow("%s, %s", crash, state) << QString::fromLatin1(crash) << QString::fromLatin1(state)
                                              << QString::fromLatin1(reason) << reports << end;
    };

    row("SEGV", "main", "Signal SIGSEGV was raised!\n", 1, endsWell);
    row("SEGV", "thread", "Signal SIGSEGV was raised!\n", 1, endsWell);
    row("SEGV", "logging-queue", "Signal SIGSEGV was raised!\n", 1, endsWell);
    row("SEGV", "logger-queue", "Signal SIGSEGV was raised!\n", 1, endsWell);
    row("SEGV", "inside-another-logger", "Signal SIGSEGV was raised!\n", 1, endsWell);
    row("SEGV", "during-a-report", "", 0, endsWell);
    row("INT", "report-that-hangs", "", 0, carriesOn);
    row("FPE", "main", "Signal SIGFPE was raised!\n", 1, carriesOn);
    row("BUS", "main", "Signal SIGBUS was raised!\n", 1, carriesOn);
    row("HUP", "main", "Signal SIGHUP was raised!\n", 1, carriesOn);
    row("INT", "main", "Signal SIGINT was raised!\n", 1, carriesOn);
    row("INT", "logging-queue", "Signal SIGINT was raised!\n", 1, carriesOn);
    row("INT", "logger-queue", "Signal SIGINT was raised!\n", 1, carriesOn);
    row("ILL", "main", "Signal SIGILL was raised!\n", 1, carriesOn);
    row("PIPE", "thread", "Signal SIGPIPE was raised!\n", 1, carriesOn);
    row("two-pipes", "main", "Signal SIGPIPE was raised!\n", 2, carriesOn);
    row("QUIT", "main", "Signal SIGQUIT was raised!\n", 1, carriesOn);
    row("ALRM", "main", "Signal SIGALRM was raised!\n", 1, carriesOn);
    row("TRAP", "main", "Signal 5 was raised!", 1, carriesOn);
    row("fatal-error-of-glib", "main", "Signal 5 was raised!", 1, dies(SIGABRT));
    row("abort", "main", "Signal SIGABRT was raised!\n", 1, dies(SIGABRT));
    row("exception", "main", "out of paper", 1, dies(SIGABRT));
    row("exception", "thread", "out of paper", 1, dies(SIGABRT));
    row("exception", "logging-queue", "out of paper", 1, dies(SIGABRT));
    row("exception", "logger-queue", "out of paper", 1, dies(SIGABRT));
    row("exception-without-text", "main", "an exception without a text", 1, dies(SIGABRT));
    row("exception-that-names-SIGSEGV", "main", "saw SIGSEGV", 1, endsWell);
    if (faultsReachTheProgram) {
        row("null-pointer", "main", "Signal SIGSEGV was raised!\n", 1, endsWell);
        row("stack-overflow", "main", "Signal SIGSEGV was raised!\n", 1, endsWell);
        row("stack-overflow", "logging-queue", "Signal SIGSEGV was raised!\n", 1, endsWell);
        row("stack-overflow", "logger-queue", "Signal SIGSEGV was raised!\n", 1, endsWell);
        row("stack-overflow", "event-thread", "Signal SIGSEGV was raised!\n", 1, endsWell);
        row("divide-by-zero", "main", "Signal SIGFPE was raised!\n", 1, dies(SIGFPE));
        row("illegal-instruction", "thread", "Signal SIGILL was raised!\n", 1, dies(SIGILL));
        row("beyond-the-file", "main", "Signal SIGBUS was raised!\n", 1, dies(SIGBUS));
    }
}

void CrashCaptureTests::reports()
{
    QFETCH(QString, crash);
    QFETCH(QString, state);
    QFETCH(QString, reason);
    QFETCH(int, reports);
    QFETCH(End, end);

    const End seen = run(crash, state);
    QVERIFY2(seen == end,
             qPrintable(u"%1 %2\n%3"_s.arg(QString::number(seen.kind), QString::number(seen.number), m_output)));
    m_output.remove(u"outlived\n"_s);
    QVERIFY2(m_output.contains(u" start\n"_s), qPrintable(m_output));
    QCOMPARE(m_output.count(u"[ Uncaught Exception ]"_s), reports);
    if (reports == 0)
        return;
    QVERIFY2(m_output.endsWith(u"[ Fe Symbols End ]\n\n\n"_s), qPrintable(m_output));
    QVERIFY2(m_output.contains(u"] ❌ <FileName: WTExceptionHandler> <Function: void HandleException(NSException "
                               u"*__strong)> <Line: 141> 崩溃信息：\n[ Uncaught Exception ]\n\nName: "_s),
             qPrintable(m_output));
    QVERIFY2(m_output.contains(u"\n\nReason: "_s + reason + u"\n\nProcess: "_s), qPrintable(m_output));
    if (state == u"main")
        QVERIFY2(m_output.contains(u" TID:%1] ❌"_s.arg(m_process, 6)), "the report names the thread that crashed");
}

void CrashCaptureTests::reportsAFaultInsideTheAllocator_data()
{
    QTest::addColumn<QString>("state");
    for (const char *state : {"main", "thread", "logger-queue", "logging-queue", "crowd"}) {
        for (const char *crash : {"small-block-used-after-free", "large-block-used-after-free", "overflow-into-top",
                                  "overflow-into-next", "freed-twice"})
            QTest::addRow("%s, %s", crash, state) << QString::fromLatin1(state);
    }
    QTest::newRow("arena-held-by-another-thread, main") << u"main"_s;
}

void CrashCaptureTests::reportsAFaultInsideTheAllocator()
{
    QFETCH(QString, state);
    if (!faultsReachTheProgram)
        QSKIP("the sanitizer has an allocator of its own");
    const QString crash = QString::fromLatin1(QTest::currentDataTag()).section(u',', 0, 0);
    const End seen = run(crash, state);
    // What the allocator notices it aborts, and what it does not is a segmentation fault.
    QVERIFY2(seen == dies(SIGABRT) || seen == endsWell, qPrintable(m_output));
    QVERIFY2(m_output.contains(u"[ Fe Symbols End ]"_s), qPrintable(m_output));
    if (state == u"main")
        QCOMPARE(m_output.count(u" xxx"_s), linesBeforeHeapCrash);
}

void CrashCaptureTests::leavesTheReportInTheLogFile_data()
{
    QTest::addColumn<QString>("crash");
    QTest::addColumn<QString>("state");
    QTest::addColumn<End>("end");

    QTest::newRow("any thread") << u"SEGV"_s << u"main"_s << endsWell;
    QTest::newRow("the thread that writes the file") << u"SEGV"_s << u"file-logger-queue"_s << endsWell;
    QTest::newRow("carries on") << u"FPE"_s << u"main"_s << carriesOn;
    QTest::newRow("abort") << u"abort"_s << u"main"_s << dies(SIGABRT);
    QTest::newRow("exception") << u"exception"_s << u"main"_s << dies(SIGABRT);
}

void CrashCaptureTests::leavesTheReportInTheLogFile()
{
    QFETCH(QString, crash);
    QFETCH(QString, state);
    QFETCH(End, end);
    const QTemporaryDir folder;
    QVERIFY2(run(crash, state, folder.path()) == end, qPrintable(m_output));
    const QStringList files = QDir(folder.path()).entryList(QDir::Files);
    QCOMPARE(files.size(), 1);
    QFile file(folder.filePath(files.constFirst()));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString written = QString::fromUtf8(file.readAll());
    QVERIFY2(written.contains(u" start\n"_s), qPrintable(written));
    QVERIFY2(written.endsWith(u"[ Fe Symbols End ]\n\n"_s), qPrintable(written));
}

void CrashCaptureTests::flushesAtTheEnd_data()
{
    QTest::addColumn<QString>("state");

    QTest::newRow("exit handler") << u"main"_s;
    QTest::newRow("application object") << u"application"_s;
}

void CrashCaptureTests::flushesAtTheEnd()
{
    QFETCH(QString, state);
    QCOMPARE(run(u"exit"_s, state), carriesOn);
    QVERIFY2(m_output.contains(u" last words\nflushed\n"_s), qPrintable(m_output));
}

QTEST_GUILESS_MAIN(CrashCaptureTests)
#include "CrashCaptureTests.moc"
