#include "Log.h"
#include "WTLogMessage.h"
#include "WTLogger.h"
#include "WpsOutcomeView.h"

#include <QProcess>
#include <QTest>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr auto asChild = "--as-child"_L1;
constexpr int lineCount = 20;

/// A slow logger, which still has lines to take when the process ends, and writes nothing before it is flushed.
class SlowLogger : public WTLogger
{
public:
    void logMessage(const WTLogMessage &message) override
    {
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
        m_held += message.message() + u'\n';
    }
    void flush() override
    {
        std::fputs(m_held.toUtf8().constData(), stdout);
        std::fflush(stdout);
    }

private:
    QString m_held;
};

void logAndEnd()
{
    WTLog::addLogger(std::make_shared<SlowLogger>());
    std::atexit([] { std::puts("farewell"); });
    for (int line = 0; line < lineCount; ++line)
        logInfo("line %d", line);
    endProcess();
}

} // namespace

/// How the WPS outcome screens end the process.
class WpsProcessEndTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void endsAtOnceWithTheLogWritten()
    {
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(), {asChild});
        QVERIFY(child.waitForFinished());
        QCOMPARE(child.exitStatus(), QProcess::NormalExit);
        QCOMPARE(child.exitCode(), 0);
        QStringList lines;
        for (int line = 0; line < lineCount; ++line)
            lines << u"line %1"_s.arg(line);
        QCOMPARE(QString::fromUtf8(child.readAllStandardOutput()).trimmed().split(u'\n'), lines);
    }
};

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    if (application.arguments().value(1) == asChild)
        logAndEnd();
    WpsProcessEndTests tests;
    return QTest::qExec(&tests, argc, argv);
}

#include "WpsProcessEndTests.moc"
