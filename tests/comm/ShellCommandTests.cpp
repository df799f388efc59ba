#include "Rows.h"
#include "WTCommand.h"

#include <QElapsedTimer>

using namespace Qt::Literals::StringLiterals;

class ShellCommandTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answersWhatTheCommandWrote_data();
    void answersWhatTheCommandWrote();
    void waitsForTheCommandButNotForADetachedOne();
};

void ShellCommandTests::answersWhatTheCommandWrote_data()
{
    const Rows<QString, std::optional<QString>> row{"commandLine", "output"};
    row("nothing", u"true"_s, u""_s);
    row("two lines", u"echo 网络; echo two"_s, u"网络\ntwo\n"_s);
    row("quotes belong to the shell", u"printf '%s' \"a b\""_s, u"a b"_s);
    row("more than one read takes", u"head -c 60000 /dev/zero | tr '\\0' x"_s, QString(60000, u'x'));
    row("failure after output", u"echo said; exit 3"_s, u"said\n"_s);
    row("no UTF-8", u"printf '\\377\\376'"_s, std::nullopt);
}

void ShellCommandTests::answersWhatTheCommandWrote()
{
    QFETCH(QString, commandLine);
    QFETCH(std::optional<QString>, output);
    QCOMPARE(WTCommand::executeShellScript(commandLine), output);
}

void ShellCommandTests::waitsForTheCommandButNotForADetachedOne()
{
    QElapsedTimer clock;
    clock.start();
    QVERIFY(WTCommand::executeShellScript(u"setsid sleep 10 >/dev/null 2>&1 </dev/null &"_s));
    QVERIFY(clock.restart() < 9000);
    QVERIFY(WTCommand::executeShellScript(u"sleep 1"_s));
    QVERIFY(clock.elapsed() >= 1000);
}

QTEST_APPLESS_MAIN(ShellCommandTests)
#include "ShellCommandTests.moc"
