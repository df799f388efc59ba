#include "WTCommand.h"

#include <QElapsedTimer>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class ShellCommandTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answersWhatTheCommandWrote_data();
    void answersWhatTheCommandWrote();
    void waitsForTheCommandButNotForADetachedOne_data();
    void waitsForTheCommandButNotForADetachedOne();
};

void ShellCommandTest::answersWhatTheCommandWrote_data()
{
    QTest::addColumn<QString>("commandLine");
    QTest::addColumn<std::optional<QString>>("output");

    const auto row = [](const char *name, const QString &commandLine, const std::optional<QString> &output) {
        QTest::newRow(name) << commandLine << output;
    };
    row("nothing", u"true"_s, u""_s);
    row("no command", u""_s, u""_s);
    row("two lines", u"echo 网络; echo two"_s, u"网络\ntwo\n"_s);
    row("quotes belong to the shell", u"printf '%s' \"a b\""_s, u"a b"_s);
    row("more than one read takes", u"head -c 60000 /dev/zero | tr '\\0' x"_s, QString(60000, u'x'));
    row("missing program", u"no-such-program-here 2>/dev/null"_s, u""_s);
    row("failure after output", u"echo said; exit 3"_s, u"said\n"_s);
    row("no UTF-8", u"printf '\\377\\376'"_s, std::nullopt);
    row("UTF-8 cut short", u"printf '\\347\\275'"_s, std::nullopt);
}

void ShellCommandTest::answersWhatTheCommandWrote()
{
    QFETCH(QString, commandLine);
    QFETCH(std::optional<QString>, output);
    QCOMPARE(WTCommand::executeShellScript(commandLine), output);
}

void ShellCommandTest::waitsForTheCommandButNotForADetachedOne_data()
{
    QTest::addColumn<QString>("commandLine");
    QTest::addColumn<bool>("waits");
    QTest::newRow("in front") << u"sleep 1"_s << true;
    QTest::newRow("detached") << u"setsid sleep 10 >/dev/null 2>&1 </dev/null &"_s << false;
}

void ShellCommandTest::waitsForTheCommandButNotForADetachedOne()
{
    QFETCH(QString, commandLine);
    QFETCH(bool, waits);
    QElapsedTimer clock;
    clock.start();
    QVERIFY(WTCommand::executeShellScript(commandLine));
    if (waits)
        QVERIFY(clock.elapsed() >= 1000);
    else
        QVERIFY(clock.elapsed() < 9000);
}

QTEST_APPLESS_MAIN(ShellCommandTest)
#include "ShellCommandTest.moc"
