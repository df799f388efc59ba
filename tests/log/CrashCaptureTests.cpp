#include "Rows.h"
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <csignal>
#include <string_view>

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

/// Runs a program that crashes on command and looks at the log it leaves.
class CrashCaptureTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reports()
    {
        reportsOf("SEGV", "main", "Signal SIGSEGV was raised!\n", endsWell);
        reportsOf("SEGV", "logging-queue", "Signal SIGSEGV was raised!\n", endsWell);
        reportsOf("SEGV", "inside-another-logger", "Signal SIGSEGV was raised!\n", endsWell);
        reportsOf("SEGV", "during-a-report", nullptr, endsWell);
        reportsOf("INT", "report-that-hangs", nullptr, carriesOn);
        reportsOf("FPE", "main", "Signal SIGFPE was raised!\n", carriesOn);
        reportsOf("BUS", "main", "Signal SIGBUS was raised!\n", carriesOn);
        reportsOf("HUP", "main", "Signal SIGHUP was raised!\n", carriesOn);
        reportsOf("INT", "logger-queue", "Signal SIGINT was raised!\n", carriesOn);
        reportsOf("ILL", "main", "Signal SIGILL was raised!\n", carriesOn);
        reportsOf("two-pipes", "thread", "Signal SIGPIPE was raised!\n", carriesOn, 2);
        reportsOf("QUIT", "main", "Signal SIGQUIT was raised!\n", carriesOn);
        reportsOf("ALRM", "main", "Signal SIGALRM was raised!\n", carriesOn);
        reportsOf("fatal-error-of-glib", "main", "Signal 5 was raised!", dies(SIGABRT));
        reportsOf("abort", "main", "Signal SIGABRT was raised!\n", dies(SIGABRT));
        reportsOf("exception", "thread", "out of paper", dies(SIGABRT));
        reportsOf("exception", "logging-queue", "out of paper", dies(SIGABRT));
        reportsOf("exception-without-text", "main", "an exception without a text", dies(SIGABRT));
        reportsOf("exception-that-names-SIGSEGV", "main", "saw SIGSEGV", endsWell);
        if (!faultsReachTheProgram)
            return;
        reportsOf("null-pointer", "main", "Signal SIGSEGV was raised!\n", endsWell);
        reportsOf("stack-overflow", "main", "Signal SIGSEGV was raised!\n", endsWell);
        reportsOf("stack-overflow", "logger-queue", "Signal SIGSEGV was raised!\n", endsWell);
        reportsOf("stack-overflow", "event-thread", "Signal SIGSEGV was raised!\n", endsWell);
        reportsOf("divide-by-zero", "main", "Signal SIGFPE was raised!\n", dies(SIGFPE));
        reportsOf("beyond-the-file", "main", "Signal SIGBUS was raised!\n", dies(SIGBUS));
    }

    void reportsAFaultInsideTheAllocator()
    {
        if (!faultsReachTheProgram)
            QSKIP("the sanitizer has an allocator of its own");
        for (const auto &[crash, state] : std::initializer_list<std::pair<std::string_view, std::string_view>>{
                 {"small-block-used-after-free", "main"},
                 {"small-block-used-after-free", "logger-queue"},
                 {"overflow-into-top", "main"},
                 {"overflow-into-top", "crowd"},
                 {"overflow-into-next", "main"},
                 {"arena-held-by-another-thread", "main"},
             }) {
            const End seen = run(QString::fromLatin1(crash), QString::fromLatin1(state));
            // What the allocator notices it aborts, and what it does not is a segmentation fault.
            QVERIFY2(seen == dies(SIGABRT) || seen == endsWell, crash.data());
            QVERIFY2(m_output.contains(u"[ Fe Symbols End ]"_s), crash.data());
            if (state == "main")
                QCOMPARE(m_output.count(u" xxx"_s), linesBeforeHeapCrash);
        }
    }

    void leavesTheReportInTheLogFile()
    {
        eachRow(
            {
                {"any thread", u"SEGV"_s, u"main"_s, endsWell},
                {"the thread that writes the file", u"SEGV"_s, u"file-logger-queue"_s, endsWell},
                {"abort", u"abort"_s, u"main"_s, dies(SIGABRT)},
                {"exception", u"exception"_s, u"main"_s, dies(SIGABRT)},
            },
            [&](const QString &crash, const QString &state, End end) {
                const QTemporaryDir folder;
                QVERIFY2(run(crash, state, folder.path()) == end, qPrintable(m_output));
                const QStringList files = QDir(folder.path()).entryList(QDir::Files);
                QCOMPARE(files.size(), 1);
                QFile file(folder.filePath(files.constFirst()));
                QVERIFY(file.open(QIODevice::ReadOnly));
                const QString written = QString::fromUtf8(file.readAll());
                QVERIFY2(written.contains(u" start\n"_s), qPrintable(written));
                QVERIFY2(written.endsWith(u"[ Fe Symbols End ]\n\n"_s), qPrintable(written));
            });
    }

    void flushesAtTheEnd()
    {
        eachRow(
            {
                {"exit handler", u"main"_s},
                {"application object", u"application"_s},
            },
            [&](const QString &state) {
                QCOMPARE(run(u"exit"_s, state), carriesOn);
                QVERIFY2(m_output.contains(u" last words\nflushed\n"_s), qPrintable(m_output));
            });
    }

private:
    End run(const QString &crash, const QString &state, const QString &folder = {})
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

    /// @param reason nullptr: no report can be made.
    void reportsOf(std::string_view crash, std::string_view state, const char *reason, End end, int times = 1)
    {
        const End seen = run(QString::fromLatin1(crash), QString::fromLatin1(state));
        m_output.remove(u"outlived\n"_s);
        const QByteArray what =
            qPrintable(u"%1, %2: %3\n%4"_s.arg(QString::fromLatin1(crash), QString::fromLatin1(state))
                           .arg(seen.number)
                           .arg(m_output));
        QVERIFY2(seen == end, what);
        QVERIFY2(m_output.contains(u" start\n"_s), what);
        QVERIFY2(m_output.count(u"[ Uncaught Exception ]"_s) == (reason ? times : 0), what);
        if (!reason)
            return;
        QVERIFY2(m_output.endsWith(u"[ Fe Symbols End ]\n\n\n"_s), what);
        QVERIFY2(m_output.contains(u"] ❌ <FileName: WTExceptionHandler> <Function: void HandleException(NSException "
                                   u"*__strong)> <Line: 141> 崩溃信息：\n[ Uncaught Exception ]\n\nName: "_s),
                 what);
        QVERIFY2(m_output.contains(u"\n\nReason: "_s + QString::fromLatin1(reason) + u"\n\nProcess: "_s), what);
        if (state == "main")
            QVERIFY2(m_output.contains(u" TID:%1] ❌"_s.arg(m_process, 6)), "the report names the thread that crashed");
    }

    QString m_output;
    qint64 m_process = 0;
};

QTEST_GUILESS_MAIN(CrashCaptureTests)
#include "CrashCaptureTests.moc"
