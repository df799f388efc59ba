#include "NetworkEntry.h"
#include "NetworkRules.h"
#include "Rows.h"

using namespace Qt::Literals::StringLiterals;

using Next = NetworkEntry::Next;

/// What both entry screens take, and where they lead.
class NetworkRulesTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void name_data();
    void name();
    void password_data();
    void password();
    void next_data();
    void next();
};

void NetworkRulesTests::name_data()
{
    const Rows<QString, QString, bool> row{"typed", "cut", "canGoNext"};
    const QString ascii(32, u'a');
    const QString printer = u"🖨"_s;
    row("empty", {}, {}, false);
    row("one space", u" "_s, u" "_s, true);
    row("32", ascii, ascii, true);
    row("33", ascii + u'b', ascii, true);
    row("32 bytes of 2", QString(16, u'é'), QString(16, u'é'), true);
    row("33 bytes", QString(16, u'é') + u'a', QString(16, u'é') + u'a', false);
    row("33 bytes of 3", QString(11, u'啡'), QString(11, u'啡'), false);
    row("pair across the limit", ascii.first(31) + printer, ascii.first(31), true);
    row("pair at the limit", ascii.first(30) + printer + u'a', ascii.first(30) + printer, false);
}

void NetworkRulesTests::name()
{
    QFETCH(QString, typed);
    const QString cut = NetworkRules::cutName(typed);
    QTEST(cut, "cut");
    QTEST(NetworkRules::isNameUsable(cut), "canGoNext");
}

void NetworkRulesTests::password_data()
{
    const Rows<QString, QString> row{"typed", "shown"};
    const auto before = u"before"_s;
    const QString longest(64, u'x');
    row("empty", {}, {});
    row("ASCII, both ends", u" ~"_s, u" ~"_s);
    row("four signs", u"¥€£•"_s, u"¥€£•"_s);
    row("64", longest, longest);
    row("65", longest + u'y', longest);
    row("bad 65th is cut first", longest + u'é', longest);
    row("tab", u"a\tb"_s, before);
    row("accent", u"caf\u00e9"_s, before);
    row("DEL", u"a\u007f"_s, before);
    row("line end behind", u"abc\n"_s, before);
    row("second line", u"abc\né"_s, before);
}

void NetworkRulesTests::password()
{
    QFETCH(QString, typed);
    QTEST(NetworkRules::passwordAfterEdit(typed, u"before"_s), "shown");
}

void NetworkRulesTests::next_data()
{
    const Rows<bool, QString, QString, Next> row{"busy", "name", "password", "next"};
    const QString home = u"Home"_s;
    row("open network", false, home, {}, Next::Go);
    row("31 bytes", false, home, QString(31, u'x'), Next::Go);
    row("32 bytes", false, home, QString(32, u'x'), Next::PasswordTooLong);
    row("11 signs of 3 bytes", false, home, QString(11, u'€'), Next::PasswordTooLong);
    row("10 signs of 3 bytes", false, home, QString(10, u'€'), Next::Go);
    row("empty name comes before the password", false, {}, QString(64, u'x'), Next::EmptyName);
    row("busy comes first", true, {}, QString(64, u'x'), Next::PrinterBusy);
}

void NetworkRulesTests::next()
{
    QFETCH(bool, busy);
    QFETCH(QString, name);
    QFETCH(QString, password);
    QTEST((NetworkEntry{name, password}.next(busy)), "next");
}

QTEST_GUILESS_MAIN(NetworkRulesTests)
#include "NetworkRulesTests.moc"
