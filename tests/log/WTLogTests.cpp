#include "Log.h"
#include "RecordingLogger.h"
#include "WTAbstractLogger.h"

#include <QSemaphore>
#include <QTest>
#include <thread>
#include <vector>

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

/// Returns when everything that was queued before has been written.
void settle()
{
    WTLog::flushLog();
}

void logWithFlag(quint64 flag, const char *text)
{
    WTLog::log(true, WTLogLevelAll, flag, 0, "file.cpp", "function", 1, {}, text);
}

struct LevelledClass {
    static inline quint64 level = WTLogFlagError;
    static quint64 logLevel() { return level; }
    static void wtcSetLogLevel(quint64 changed) { level = changed; }
};

struct ReadOnlyClass {
    static quint64 logLevel() { return WTLogFlagError; }
};

class NotedFormatter : public WTLogFormatting
{
public:
    explicit NotedFormatter(QStringList &notes)
        : m_notes(notes)
    {
    }

    std::optional<QString> formatLogMessage(const WTLogMessage &message) override
    {
        return u"<"_s + message.message() + u">"_s;
    }
    void didAddToLogger(WTLogger &, SerialQueue &inQueue) override
    {
        m_notes.append(inQueue.isCurrent() ? u"added on its queue"_s : u"added elsewhere"_s);
    }
    void willRemoveFromLogger(WTLogger &) override { m_notes.append(u"removed"_s); }

private:
    QStringList &m_notes;
};

class NamedLogger : public WTAbstractLogger
{
public:
    void logMessage(const WTLogMessage &message) override { written.append(textForMessage(message).value()); }

    QStringList written;
};

} // namespace

class WTLogTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void deliversInOrderToEveryLogger();
    void keepsTheOrderOfEachThread();
    void admitsByFlag_data();
    void admitsByFlag();
    void registersOncePerLevel();
    void removesTheFirstRegistration();
    void tellsLoggersOfTheirRegistration();
    void ignoresNothing();
    void writesSynchronouslyBeforeItReturns();
    void logsInPlaceOnTheLoggingQueue();
    void neverBlocksACallerThatDoesNotWait();
    void flushesEveryLogger();
    void describesTheCallSite();
    void changesFormattersOnTheLoggersQueue();
    void runsALoggerOnItsOwnQueue();
    void keepsLevelsPerClass();
};

void WTLogTests::cleanup()
{
    WTLog::removeAllLoggers();
    settle();
    QVERIFY(WTLog::allLoggers().isEmpty());
}

void WTLogTests::deliversInOrderToEveryLogger()
{
    const auto first = addRecorder(), second = addRecorder();
    QStringList expected{u"added"_s};
    for (int number = 0; number < 500; ++number) {
        logInfo("%d", number);
        expected.append(QString::number(number));
    }
    settle();
    expected.append(u"flush"_s);
    QCOMPARE(first->events(), expected);
    QCOMPARE(second->events(), expected);
}

void WTLogTests::keepsTheOrderOfEachThread()
{
    constexpr int writers = 4, messages = 200;
    const auto recorder = addRecorder();
    std::vector<std::thread> threads;
    for (int writer = 0; writer < writers; ++writer) {
        threads.emplace_back([writer] {
            for (int number = 0; number < messages; ++number)
                logInfo("%d %d", writer, number);
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    settle();
    std::array<int, writers> next{};
    const QStringList events = recorder->events();
    QCOMPARE(events.size(), 1 + writers * messages + 1);
    for (const QString &event : events.sliced(1, writers * messages)) {
        const QStringList parts = event.split(u' ');
        QCOMPARE(parts.at(1).toInt(), next.at(parts.at(0).toUInt())++);
    }
}

void WTLogTests::admitsByFlag_data()
{
    QTest::addColumn<quint64>("level");
    QTest::addColumn<quint64>("flag");
    QTest::addColumn<bool>("admitted");

    QTest::newRow("all admit info") << WTLogLevelAll << quint64{WTLogFlagInfo} << true;
    QTest::newRow("all admit the highest bit") << WTLogLevelAll << (quint64{1} << 63) << true;
    QTest::newRow("flag 0 reaches nobody") << WTLogLevelAll << quint64{0} << false;
    QTest::newRow("bit set") << quint64{WTLogFlagError | WTLogFlagDebug} << quint64{WTLogFlagDebug} << true;
    QTest::newRow("bit not set") << quint64{WTLogFlagError | WTLogFlagDebug} << quint64{WTLogFlagInfo} << false;
}

void WTLogTests::admitsByFlag()
{
    QFETCH(quint64, level);
    QFETCH(quint64, flag);
    const auto recorder = addRecorder(level);
    logWithFlag(flag, "text");
    settle();
    QTEST(recorder->events().contains(u"text"_s), "admitted");
}

void WTLogTests::registersOncePerLevel()
{
    const auto recorder = addRecorder();
    WTLog::addLogger(recorder);
    WTLog::addLogger(recorder, WTLogFlagInfo);
    logInfo("twice");
    logDebug("once");
    settle();
    QCOMPARE(WTLog::allLoggers(), QList<WTLog::LoggerPtr>({recorder, recorder}));
    QCOMPARE(recorder->events().count(u"twice"_s), 2);
    QCOMPARE(recorder->events().count(u"once"_s), 1);
}

void WTLogTests::removesTheFirstRegistration()
{
    const auto recorder = addRecorder(WTLogFlagInfo);
    WTLog::addLogger(recorder, WTLogFlagDebug);
    WTLog::removeLogger(recorder);
    WTLog::removeLogger(std::make_shared<RecordingLogger>());
    const QList<WTLoggerInformation> left = WTLog::allLoggersWithLevel();
    QCOMPARE(left.size(), 1);
    QCOMPARE(left.constFirst().level, quint64{WTLogFlagDebug});
    QVERIFY(left.constFirst().logger == recorder);
}

void WTLogTests::tellsLoggersOfTheirRegistration()
{
    const auto recorder = addRecorder(), other = addRecorder();
    WTLog::removeLogger(recorder);
    logInfo("for one");
    WTLog::removeAllLoggers();
    logInfo("too late");
    settle();
    QTRY_COMPARE(recorder->events(), QStringList({u"added"_s, u"removed"_s}));
    QTRY_COMPARE(other->events(), QStringList({u"added"_s, u"for one"_s, u"removed"_s}));
}

void WTLogTests::ignoresNothing()
{
    const auto recorder = addRecorder();
    WTLog::addLogger(nullptr);
    WTLog::removeLogger(nullptr);
    logWithFlag(WTLogFlagInfo, nullptr);
    settle();
    QCOMPARE(WTLog::allLoggers().size(), 1);
    QCOMPARE(recorder->events(), QStringList({u"added"_s, u"flush"_s}));
}

void WTLogTests::writesSynchronouslyBeforeItReturns()
{
    const auto recorder = addRecorder();
    logInfo("first");
    logErrorSynchronously("second");
    QCOMPARE(recorder->events(), QStringList({u"added"_s, u"first"_s, u"second"_s}));
}

void WTLogTests::logsInPlaceOnTheLoggingQueue()
{
    const auto recorder = addRecorder();
    QStringList seenInside;
    WTLog::loggingQueue().sync([&] {
        logErrorSynchronously("inside");
        seenInside = recorder->events();
    });
    QCOMPARE(seenInside, QStringList({u"added"_s, u"inside"_s}));
}

void WTLogTests::neverBlocksACallerThatDoesNotWait()
{
    QSemaphore mayWrite;
    const auto slow = std::make_shared<RecordingLogger>([&](const WTLogMessage &) { mayWrite.acquire(); });
    WTLog::addLogger(slow);
    for (int number = 0; number < 2000; ++number)
        logInfo("%d", number);
    QVERIFY(slow->events().size() <= 2);
    mayWrite.release(2000);
    settle();
    QCOMPARE(slow->events().size(), 2002);
}

void WTLogTests::flushesEveryLogger()
{
    const auto first = addRecorder(), second = addRecorder(WTLogFlagError);
    WTLog::applicationWillTerminate();
    QCOMPARE(first->events(), QStringList({u"added"_s, u"flush"_s}));
    QCOMPARE(second->events(), QStringList({u"added"_s, u"flush"_s}));
    cleanup();
    WTLog::flushLog();
}

void WTLogTests::describesTheCallSite()
{
    std::optional<WTLogMessage> seen;
    WTLog::addLogger(std::make_shared<RecordingLogger>([&](const WTLogMessage &message) { seen = message; }));
    const quint64 line = std::source_location::current().line() + 1;
    logWarning("%@ of %d", u"one"_s, 2);
    settle();
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

void WTLogTests::changesFormattersOnTheLoggersQueue()
{
    QStringList notes;
    const auto logger = std::make_shared<NamedLogger>();
    const auto formatter = std::make_shared<NotedFormatter>(notes);
    WTLog::addLogger(logger);
    logInfo("plain");
    logger->setLogFormatter(formatter);
    logger->setLogFormatter(formatter);
    QVERIFY(logger->logFormatter() == formatter);
    logInfo("laid out");
    logger->setLogFormatter(nullptr);
    QVERIFY(!logger->logFormatter());
    QCOMPARE(logger->written, QStringList({u"plain"_s, u"<laid out>"_s}));
    QCOMPARE(notes, QStringList({u"added on its queue"_s, u"removed"_s}));
}

void WTLogTests::runsALoggerOnItsOwnQueue()
{
    const auto logger = std::make_shared<NamedLogger>();
    QVERIFY(logger->loggerName().endsWith(u"NamedLogger"_s));
    QCOMPARE(logger->loggerQueue()->label(), logger->loggerName());
    QVERIFY(!logger->isOnGlobalLoggingQueue());
    WTLog::loggingQueue().sync([&] { QVERIFY(logger->isOnGlobalLoggingQueue()); });
    logger->loggerQueue()->sync([&] { QVERIFY(logger->isOnInternalLoggerQueue()); });

    const auto shared = std::make_shared<SerialQueue>(u"shared"_s);
    logger->setLoggerQueue(shared);
    shared->sync([&] { QVERIFY(logger->isOnInternalLoggerQueue()); });
}

void WTLogTests::keepsLevelsPerClass()
{
    const auto levelled = WTLogClass::named<LevelledClass>(u"LevelledClass"_s);
    const auto readOnly = WTLogClass::named<ReadOnlyClass>(u"ReadOnlyClass"_s);
    QVERIFY(WTLog::registeredClasses().isEmpty());
    WTLogClass::publish(levelled);
    WTLogClass::publish(readOnly);
    QCOMPARE(WTLog::registeredClassNames(), QStringList{u"LevelledClass"_s});
    QVERIFY(WTLog::isRegisteredClass(levelled));
    QVERIFY(!WTLog::isRegisteredClass(readOnly));

    WTLog::setLevel(WTLogFlagDebug, levelled);
    QCOMPARE(WTLog::levelForClassWithName(u"LevelledClass"_s), quint64{WTLogFlagDebug});
    WTLog::setLevel(WTLogFlagInfo, u"LevelledClass"_s);
    QCOMPARE(WTLog::levelForClass(levelled), quint64{WTLogFlagInfo});
    WTLog::setLevel(WTLogFlagInfo, readOnly);
    QCOMPARE(WTLog::levelForClass(readOnly), WTLogLevelAll);
    QCOMPARE(WTLog::levelForClassWithName(u"Nobody"_s), WTLogLevelAll);
}

QTEST_GUILESS_MAIN(WTLogTests)
#include "WTLogTests.moc"
