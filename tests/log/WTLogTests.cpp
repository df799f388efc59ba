#include "Log.h"
#include "RecordingLogger.h"
#include "Rows.h"

#include <QSemaphore>

using namespace Qt::Literals::StringLiterals;

namespace
{

using RecorderPtr = std::shared_ptr<RecordingLogger>;

RecorderPtr addRecorder(quint64 level = WTLogLevelAll)
{
    auto recorder = std::make_shared<RecordingLogger>();
    WTLog::addLogger(recorder, level);
    return recorder;
}

void logWithFlag(quint64 flag, const char *text)
{
    WTLog::log(true, WTLogLevelAll, flag, 0, "file.cpp", "function", 1, {}, text);
}

} // namespace

class WTLogTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        WTLog::removeAllLoggers();
        WTLog::flushLog();
        QVERIFY(WTLog::allLoggers().isEmpty());
    }

    void deliversInOrderToEveryLogger()
    {
        const auto first = addRecorder(), second = addRecorder();
        QStringList expected{u"added"_s};
        for (int number = 0; number < 500; ++number) {
            logInfo("%d", number);
            expected.append(QString::number(number));
        }
        WTLog::flushLog();
        expected.append(u"flush"_s);
        QCOMPARE(first->events(), expected);
        QCOMPARE(second->events(), expected);
    }

    void admitsByFlag()
    {
        eachRow(
            {
                {"all admit info", WTLogLevelAll, quint64{WTLogFlagInfo}, true},
                {"all admit the highest bit", WTLogLevelAll, (quint64{1} << 63), true},
                {"flag 0 reaches nobody", WTLogLevelAll, quint64{0}, false},
                {"bit set", quint64{WTLogFlagError | WTLogFlagDebug}, quint64{WTLogFlagDebug}, true},
                {"bit not set", quint64{WTLogFlagError | WTLogFlagDebug}, quint64{WTLogFlagInfo}, false},
            },
            [&](quint64 level, quint64 flag, bool admitted) {
                const auto recorder = addRecorder(level);
                logWithFlag(flag, "text");
                WTLog::flushLog();
                QCOMPARE(recorder->events().contains(u"text"_s), admitted);
            });
    }

    void registersOncePerLevel()
    {
        const auto recorder = addRecorder();
        WTLog::addLogger(recorder);
        WTLog::addLogger(recorder, WTLogFlagInfo);
        logInfo("twice");
        logDebug("once");
        WTLog::flushLog();
        QCOMPARE(WTLog::allLoggers(), QList<WTLog::LoggerPtr>({recorder, recorder}));
        QCOMPARE(recorder->events().count(u"twice"_s), 2);
        QCOMPARE(recorder->events().count(u"once"_s), 1);
    }

    void tellsLoggersOfTheirRegistration()
    {
        const auto recorder = addRecorder(), other = addRecorder();
        WTLog::removeLogger(recorder);
        logInfo("for one");
        WTLog::removeAllLoggers();
        logInfo("too late");
        WTLog::flushLog();
        QTRY_COMPARE(recorder->events(), QStringList({u"added"_s, u"removed"_s}));
        QTRY_COMPARE(other->events(), QStringList({u"added"_s, u"for one"_s, u"removed"_s}));
    }

    void writesSynchronouslyBeforeItReturns()
    {
        const auto recorder = addRecorder();
        logInfo("first");
        logErrorSynchronously("second");
        QCOMPARE(recorder->events(), QStringList({u"added"_s, u"first"_s, u"second"_s}));
    }

    void logsInPlaceOnTheLoggingQueue()
    {
        const auto recorder = addRecorder();
        QStringList seenInside;
        WTLog::loggingQueue().sync([&] {
            logErrorSynchronously("inside");
            seenInside = recorder->events();
        });
        QCOMPARE(seenInside, QStringList({u"added"_s, u"inside"_s}));
    }

    void neverBlocksACallerThatDoesNotWait()
    {
        QSemaphore mayWrite;
        const auto slow = std::make_shared<RecordingLogger>([&](const WTLogMessage &) { mayWrite.acquire(); });
        WTLog::addLogger(slow);
        for (int number = 0; number < 2000; ++number)
            logInfo("%d", number);
        QVERIFY(slow->events().size() <= 2);
        mayWrite.release(2000);
        WTLog::flushLog();
        QCOMPARE(slow->events().size(), 2002);
    }

    void describesTheCallSite()
    {
        std::optional<WTLogMessage> seen;
        WTLog::addLogger(std::make_shared<RecordingLogger>([&](const WTLogMessage &message) { seen = message; }));
        const quint64 line = std::source_location::current().line() + 1;
        logWarning("%@ of %d", u"one"_s, 2);
        WTLog::flushLog();
        QCOMPARE(seen.value().message(), u"one of 2"_s);
        QCOMPARE(seen->messageFormat(), u"%@ of %d"_s);
        QCOMPARE(seen->flag(), quint64{WTLogFlagWarning});
        QCOMPARE(seen->level(), WTLogLevelAll);
        QCOMPARE(seen->context(), 0);
        QCOMPARE(seen->file(), u"tests/log/WTLogTests.cpp"_s);
        QCOMPARE(seen->fileName(), u"WTLogTests"_s);
        QVERIFY(seen->function().contains(u"describesTheCallSite"_s));
        QCOMPARE(seen->line(), line);
        QVERIFY(seen->representedObject().isNull());
        QCOMPARE(seen->queueLabel(), u"main"_s);
    }
};

QTEST_GUILESS_MAIN(WTLogTests)
#include "WTLogTests.moc"
