#include "NetworkRules.h"
#include "WTNetworkWithManualAdditionModel.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

using Model = WTNetworkWithManualAdditionModel;

/// The rules of name and password.
class ManualAdditionModelTests : public QObject
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

void ManualAdditionModelTests::name_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("cut");
    QTest::addColumn<bool>("canGoNext");

    const QString ascii(32, u'a');
    const QString printer = u"🖨"_s;
    QTest::newRow("empty") << QString() << QString() << false;
    QTest::newRow("one space") << u" "_s << u" "_s << true;
    QTest::newRow("32") << ascii << ascii << true;
    QTest::newRow("33") << ascii + u'b' << ascii << true;
    QTest::newRow("32 bytes of 2") << QString(16, u'é') << QString(16, u'é') << true;
    QTest::newRow("33 bytes") << QString(16, u'é') + u'a' << QString(16, u'é') + u'a' << false;
    QTest::newRow("32 letters of 2 bytes") << QString(32, u'é') << QString(32, u'é') << false;
    QTest::newRow("pair across the limit") << ascii.first(31) + printer << ascii.first(31) << true;
    QTest::newRow("pair at the limit") << ascii.first(30) + printer + u'a' << ascii.first(30) + printer << false;
}

void ManualAdditionModelTests::name()
{
    QFETCH(QString, typed);
    const QString cut = NetworkRules::cutName(typed);
    QTEST(cut, "cut");
    QTEST(NetworkRules::isNameUsable(cut), "canGoNext");
}

void ManualAdditionModelTests::password_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");

    const auto before = u"before"_s;
    const QString longest(64, u'x');
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("ASCII, both ends") << u" ~"_s << u" ~"_s;
    QTest::newRow("four signs") << u"¥€£•"_s << u"¥€£•"_s;
    QTest::newRow("64") << longest << longest;
    QTest::newRow("65") << longest + u'y' << longest;
    QTest::newRow("bad 65th is cut first") << longest + u'é' << longest;
    QTest::newRow("tab") << u"a\tb"_s << before;
    QTest::newRow("accent") << u"caf\u00e9"_s << before;
    QTest::newRow("DEL") << u"a\u007f"_s << before;
    QTest::newRow("line end behind") << u"abc\n"_s << before;
    QTest::newRow("second line") << u"abc\né"_s << before;
}

void ManualAdditionModelTests::password()
{
    QFETCH(QString, typed);
    Model model;
    model.setLastPwd(u"before"_s);
    const QString shown = model.passwordAfterTyping(typed);
    QTEST(shown, "shown");
    QCOMPARE(model.lastPwd(), shown);
}

void ManualAdditionModelTests::next_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("password");
    QTest::addColumn<Model::Next>("next");

    using enum Model::Next;
    QTest::newRow("open network") << u"Home"_s << QString() << Go;
    QTest::newRow("31 bytes") << u"Home"_s << QString(31, u'x') << Go;
    QTest::newRow("32 bytes") << u"Home"_s << QString(32, u'x') << PasswordTooLong;
    QTest::newRow("11 signs of 3 bytes") << u"Home"_s << QString(11, u'€') << PasswordTooLong;
    QTest::newRow("10 signs of 3 bytes") << u"Home"_s << QString(10, u'€') << Go;
    QTest::newRow("empty name comes first") << QString() << QString(64, u'x') << EmptyName;
}

void ManualAdditionModelTests::next()
{
    QFETCH(QString, name);
    QFETCH(QString, password);
    QTEST(Model::next(name, password), "next");
}

QTEST_GUILESS_MAIN(ManualAdditionModelTests)
#include "ManualAdditionModelTests.moc"
