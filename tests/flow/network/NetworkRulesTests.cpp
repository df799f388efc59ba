#include "NetworkHint.h"
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
    void hints_data();
    void hints();
};

void NetworkRulesTests::name_data()
{
    const Rows<QString, QString, bool> row{"typed", "cut", "canGoNext"};
    const QString ascii(32, u'a');
    const QString printer = u"🖨"_s;
    row("empty", {}, {}, false);
    row("blanks", u"  "_s, u"  "_s, false);
    row("blank at the end", u"n "_s, u"n "_s, true);
    row("escape", u"n\u001bE"_s, u"n\u001bE"_s, false);
    row("direction mark", u"n\u202en"_s, u"n\u202en"_s, true);
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
    row("32 bytes", false, home, QString(32, u'x'), Next::UnusablePassword);
    row("11 signs of 3 bytes", false, home, QString(11, u'€'), Next::UnusablePassword);
    row("10 signs of 3 bytes", false, home, QString(10, u'€'), Next::Go);
    row("line end in a stored password", false, home, u"pass\nword"_s, Next::UnusablePassword);
    row("empty name comes before the password", false, {}, QString(64, u'x'), Next::EmptyName);
    row("name of blanks", false, u"  "_s, {}, Next::EmptyName);
    row("name of 33 bytes", false, QString(11, u'啡'), {}, Next::UnusableName);
    row("line end in the name", false, u"Ho\nme"_s, {}, Next::UnusableName);
    row("busy comes first", true, {}, QString(64, u'x'), Next::PrinterBusy);
}

void NetworkRulesTests::next()
{
    QFETCH(bool, busy);
    QFETCH(QString, name);
    QFETCH(QString, password);
    QTEST((NetworkEntry{name, password}.next(busy)), "next");
}

void NetworkRulesTests::hints_data()
{
    using enum NetworkHint;
    const Rows<int, bool, QString, QString, NetworkHint> row{"security", "only5GHz", "name", "password", "hint"};
    constexpr int unseen = -1, other = 0, open = 1, wpa2 = 7, enterprise = 8, wpa3 = 11, enhancedOpen = 13,
                  unknown = 14;
    const QString name = u"Home"_s, password = u"secret"_s;
    row("nothing to say", wpa2, false, name, password, None);
    row("user name", enterprise, true, name, {}, UserName);
    row("no password", wpa3, true, name, {}, NoPassword);
    row("only WPA3", wpa3, true, name, password, OnlyWpa3);
    row("only 5 GHz", wpa2, true, u" Home"_s, password, Only5GHz);
    row("open and 5 GHz", open, true, name, {}, Only5GHz);
    row("blank before the name", unseen, false, u" Home"_s, u" secret"_s, BlankInName);
    row("blank behind the password", wpa2, false, name, u"secret "_s, BlankInPassword);
    row("blank inside", wpa2, false, u"My home"_s, u"my secret"_s, None);
    row("no password is right", enhancedOpen, false, name, {}, None);
    row("nobody knows", other, false, name, {}, None);
    row("a kind of the future", unknown, false, name, {}, None);
    row("not in sight", unseen, false, name, {}, None);
}

void NetworkRulesTests::hints()
{
    QFETCH(int, security);
    QFETCH(bool, only5GHz);
    QFETCH(QString, name);
    QFETCH(QString, password);
    WTWiFi listed;
    listed.security = security;
    listed.only5GHz = only5GHz;
    const NetworkHint hint = networkHint({name, password}, security < 0 ? nullptr : &listed);
    QTEST(hint, "hint");
    QCOMPARE(hintText(hint).isEmpty(), hint == NetworkHint::None);
}

QTEST_GUILESS_MAIN(NetworkRulesTests)
#include "NetworkRulesTests.moc"
