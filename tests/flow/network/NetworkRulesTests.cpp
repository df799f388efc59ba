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
    void name()
    {
        const QString ascii(32, u'a');
        const QString printer = u"🖨"_s;
        eachRow(
            {
                {"empty", {}, {}, false},
                {"blanks", u"  "_s, u"  "_s, false},
                {"blank at the end", u"n "_s, u"n "_s, true},
                {"escape", u"n\u001bE"_s, u"n\u001bE"_s, false},
                {"direction mark", u"n\u202en"_s, u"n\u202en"_s, true},
                {"33", ascii + u'b', ascii, true},
                {"32 bytes of 2", QString(16, u'é'), QString(16, u'é'), true},
                {"33 bytes", QString(16, u'é') + u'a', QString(16, u'é') + u'a', false},
                {"pair across the limit", ascii.first(31) + printer, ascii.first(31), true},
                {"pair at the limit", ascii.first(30) + printer + u'a', ascii.first(30) + printer, false},
            },
            [&](const QString &typed, const QString &cut, bool canGoNext) {
                QCOMPARE(NetworkRules::cutName(typed), cut);
                QCOMPARE(NetworkRules::isNameUsable(cut), canGoNext);
            });
    }

    void password()
    {
        const auto before = u"before"_s;
        const QString longest(64, u'x');
        eachRow(
            {
                {"empty", {}, {}},
                {"ASCII, both ends", u" ~"_s, u" ~"_s},
                {"four signs", u"¥€£•"_s, u"¥€£•"_s},
                {"65, the last is cut first", longest + u'é', longest},
                {"tab", u"a\tb"_s, before},
                {"accent", u"caf\u00e9"_s, before},
                {"DEL", u"a\u007f"_s, before},
                {"line end behind", u"abc\n"_s, before},
                {"second line", u"abc\né"_s, before},
            },
            [&](const QString &typed, const QString &shown) {
                QCOMPARE(NetworkRules::passwordAfterEdit(typed, before), shown);
            });
    }

    void next()
    {
        const QString home = u"Home"_s;
        eachRow(
            {
                {"open network", false, home, {}, Next::Go},
                {"31 bytes", false, home, QString(31, u'x'), Next::Go},
                {"32 bytes", false, home, QString(32, u'x'), Next::UnusablePassword},
                {"11 signs of 3 bytes", false, home, QString(11, u'€'), Next::UnusablePassword},
                {"line end in a stored password", false, home, u"pass\nword"_s, Next::UnusablePassword},
                {"empty name comes before the password", false, {}, QString(64, u'x'), Next::EmptyName},
                {"name of blanks", false, u"  "_s, {}, Next::EmptyName},
                {"name of 33 bytes", false, QString(11, u'啡'), {}, Next::UnusableName},
                {"busy comes first", true, {}, QString(64, u'x'), Next::PrinterBusy},
            },
            [&](bool busy, const QString &name, const QString &password, const Next &next) {
                QCOMPARE((NetworkEntry{name, password}.next(busy)), next);
            });
    }

    void hints()
    {
        using enum NetworkHint;
        constexpr int unseen = -1, other = 0, open = 1, wpa2 = 7, enterprise = 8, wpa3 = 11, enhancedOpen = 13,
                      unknown = 14;
        const QString home = u"Home"_s, secret = u"secret"_s;
        eachRow(
            {
                {"nothing to say", wpa2, false, home, secret, None},
                {"user name", enterprise, true, home, {}, UserName},
                {"no password", wpa3, true, home, {}, NoPassword},
                {"only WPA3", wpa3, true, home, secret, OnlyWpa3},
                {"only 5 GHz", wpa2, true, u" Home"_s, secret, Only5GHz},
                {"open and 5 GHz", open, true, home, {}, Only5GHz},
                {"blank before the name", unseen, false, u" Home"_s, u" secret"_s, BlankInName},
                {"blank behind the password", wpa2, false, home, u"secret "_s, BlankInPassword},
                {"blank inside", wpa2, false, u"My home"_s, u"my secret"_s, None},
                {"no password is right", enhancedOpen, false, home, {}, None},
                {"nobody knows", other, false, home, {}, None},
                {"a kind of the future", unknown, false, home, {}, None},
                {"not in sight", unseen, false, home, {}, None},
            },
            [&](int security, bool only5GHz, const QString &name, const QString &password, const NetworkHint &hint) {
                WTWiFi listed;
                listed.security = security;
                listed.only5GHz = only5GHz;
                QCOMPARE(networkHint({name, password}, security < 0 ? nullptr : &listed), hint);
                QCOMPARE(hintText(hint).isEmpty(), hint == None);
            });
    }
};

QTEST_GUILESS_MAIN(NetworkRulesTests)
#include "NetworkRulesTests.moc"
