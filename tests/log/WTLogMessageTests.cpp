#include "SerialQueue.h"
#include "WTLogMessage.h"

#include <QTest>
#include <pthread.h>
#include <thread>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace
{

using Date = WTLogMessage::Date;

const Date moment{std::chrono::seconds{1000}};

/// The arguments of a message, each with the value that the tests start from.
struct Recipe {
    QString text = u"text"_s;
    quint64 level = WTLogLevelAll;
    quint64 flag = WTLogFlagInfo;
    qint64 context = 0;
    WTLogMessage::Place place{u"a.cpp"_s, u"f"_s, 3};
    QVariant tag = u"tag"_s;
    quint64 options = 0;
    Date date = moment;

    WTLogMessage made() const
    {
        return WTLogMessage::initWithMessage(text, level, flag, context, place, tag, options, date);
    }
};

} // namespace

Q_DECLARE_METATYPE(Recipe)

class WTLogMessageTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesTheFile_data();
    void namesTheFile();
    void fillsItsFormat();
    void knowsItsThread();
    void equalsAMessageThatSaysTheSame();
    void differsInAnyField_data();
    void differsInAnyField();
};

void WTLogMessageTests::namesTheFile_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("expected");

    QTest::newRow("extension") << u"/a/main.m"_s << u"main"_s;
    QTest::newRow("no extension") << u"a/main"_s << u"main"_s;
    QTest::newRow("only the last is cut") << u"a.b/b.c.m"_s << u"b.c"_s;
    QTest::newRow("dot in the folder only") << u"a.b/c"_s << u"c"_s;
    QTest::newRow("bare name") << u"main.cpp"_s << u"main"_s;
    QTest::newRow("empty") << QString() << QString();
}

void WTLogMessageTests::namesTheFile()
{
    QFETCH(QString, file);
    QTEST((Recipe{.place = {file, {}, 0}}.made().fileName()), "expected");
}

void WTLogMessageTests::fillsItsFormat()
{
    const auto message = WTLogMessage::initWithFormat(u"%d %@"_s, {1, u"a"_s}, WTLogLevelAll, WTLogFlagInfo, 7, {}, 42,
                                                      WTLogMessageCopyFile, moment);
    QCOMPARE(message.message(), u"1 a"_s);
    QCOMPARE(message.messageFormat(), u"%d %@"_s);
    QCOMPARE(message.options(), quint64{WTLogMessageCopyFile | WTLogMessageDontCopyMessage});
    QCOMPARE(message.tag(), message.representedObject());
    QCOMPARE(Recipe().made().messageFormat(), u"text"_s);
    QCOMPARE(Recipe().made().options(), quint64{0});
}

void WTLogMessageTests::knowsItsThread()
{
    SerialQueue queue(u"a queue"_s);
    std::optional<WTLogMessage> there;
    qint64 thread = 0;
    queue.sync([&] {
        thread = gettid();
        pthread_setname_np(pthread_self(), "renamed");
        there = Recipe().made();
    });
    QCOMPARE(there.value().threadID(), QString::number(thread));
    QCOMPARE(there->threadName(), u"renamed"_s);
    QCOMPARE(there->queueLabel(), u"a queue"_s);
    QCOMPARE(there->qos(), quint32{0});
    QCOMPARE(Recipe().made().threadID(), QString::number(getpid()));
}

void WTLogMessageTests::equalsAMessageThatSaysTheSame()
{
    const WTLogMessage message = Recipe().made();
    const WTLogMessage copy = message;
    QVERIFY(copy.isEqual(message));
    QVERIFY(Recipe().made().isEqual(message));
    QCOMPARE(Recipe().made().hash(), message.hash());
}

void WTLogMessageTests::differsInAnyField_data()
{
    QTest::addColumn<Recipe>("other");

    QTest::newRow("text") << Recipe{.text = u"other"_s};
    QTest::newRow("level") << Recipe{.level = 1};
    QTest::newRow("flag") << Recipe{.flag = WTLogFlagError};
    QTest::newRow("context") << Recipe{.context = -1};
    QTest::newRow("folder") << Recipe{.place = {u"b/a.cpp"_s, u"f"_s, 3}};
    QTest::newRow("function") << Recipe{.place = {u"a.cpp"_s, u"g"_s, 3}};
    QTest::newRow("line") << Recipe{.place = {u"a.cpp"_s, u"f"_s, 4}};
    QTest::newRow("tag") << Recipe{.tag = u"other"_s};
    QTest::newRow("options") << Recipe{.options = WTLogMessageCopyFunction};
    QTest::newRow("time") << Recipe{.date = moment + std::chrono::milliseconds{1}};
}

void WTLogMessageTests::differsInAnyField()
{
    QFETCH(Recipe, other);
    QVERIFY(!other.made().isEqual(Recipe().made()));
    std::optional<WTLogMessage> elsewhere;
    std::thread([&] { elsewhere = Recipe().made(); }).join();
    QVERIFY2(!elsewhere->isEqual(Recipe().made()), "the thread counts as well");
}

QTEST_GUILESS_MAIN(WTLogMessageTests)
#include "WTLogMessageTests.moc"
