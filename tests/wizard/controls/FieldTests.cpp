#include "InfoList.h"
#include "KSPasswordField.h"
#include "LiveLabel.h"
#include "PasswordStrengthView.h"
#include "WTCustomTextFieldFromatter.h"
#include "WTProgressView.h"
#include "WTTextfield.h"

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// Text fields, their formatter, the password field's ratings, the progress bar.
class FieldTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void formatterRefusesWhatIsTooLong_data();
    void formatterRefusesWhatIsTooLong();
    void fieldTellsWhatHappensToIt();
    void refusedKeyLeavesTheCursor_data();
    void refusedKeyLeavesTheCursor();
    void inputMethodsKeepOff();
    void strength_data();
    void strength();
    void description_data();
    void description();
    void noticesCapsLock_data();
    void noticesCapsLock();
    void progressIsCutAndSpoken_data();
    void progressIsCutAndSpoken();
};

void FieldTests::initTestCase()
{
    InfoList::setResourceFolder(QStringLiteral(WT_RESOURCE_FOLDER));
}

void FieldTests::formatterRefusesWhatIsTooLong_data()
{
    QTest::addColumn<qint32>("limit");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("after");

    const qint32 none = WTCustomTextFieldFromatter().maximumLength();
    const QString full(64, u'x');
    QTest::newRow("65th character") << 64 << full << u"y"_s << full;
    QTest::newRow("64th character") << 64 << full.chopped(1) << u"y"_s << QString(full.chopped(1) + u'y');
    QTest::newRow("paste that is too long") << 64 << u"ab"_s << full << u"ab"_s;
    QTest::newRow("no limit") << none << QString() << QString(30000, u'x') << QString(30000, u'x');
    QTest::newRow("case is kept") << 64 << QString() << u"aBc"_s << u"aBc"_s;
    QTest::newRow("nothing allowed") << 0 << QString() << u"a"_s << QString();
}

void FieldTests::formatterRefusesWhatIsTooLong()
{
    QFETCH(qint32, limit);
    QFETCH(QString, before);
    QFETCH(QString, pasted);
    WTCustomTextFieldFromatter formatter;
    formatter.setMaximumLength(limit);
    WTTextfield field;
    field.setText(before);
    field.setValidator(&formatter);
    QGuiApplication::clipboard()->setText(pasted);
    field.paste();
    QTEST(field.text(), "after");
}

void FieldTests::fieldTellsWhatHappensToIt()
{
    WTTextfield field;
    QSignalSpy entered(&field, &WTTextfield::controlDidBecomeFirstResponder);
    QSignalSpy changed(&field, &WTTextfield::controlTextDidChange);
    QSignalSpy ended(&field, &WTTextfield::controlTextDidEndEditing);
    field.show();
    field.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&field));
    field.setFocus();
    QCOMPARE(entered.count(), 1);
    field.showText(u"set by the program"_s);
    QCOMPARE(changed.count(), 0);
    QTest::keyClick(&field, Qt::Key_A);
    QCOMPARE(changed.count(), 1);
    QInputMethodEvent composed;
    composed.setCommitString(u"好"_s);
    QCoreApplication::sendEvent(&field, &composed);
    QCOMPARE(changed.count(), 2);
    QAccessible::queryAccessibleInterface(&field)->setText(QAccessible::Value, u"dictated"_s);
    QCOMPARE(changed.count(), 3);
    QTest::keyClick(&field, Qt::Key_Return);
    QCOMPARE(ended.count(), 1);
}

void FieldTests::refusedKeyLeavesTheCursor_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("after"); // The next letter that is taken.
    QTest::newRow("in the middle") << 2 << 0 << u"seXcret"_s;
    QTest::newRow("at the end") << 6 << 0 << u"secretX"_s;
    QTest::newRow("over a selection") << 1 << 2 << u"sXret"_s;
    QTest::newRow("over a selection made backwards") << 3 << -2 << u"sXret"_s;
}

void FieldTests::refusedKeyLeavesTheCursor()
{
    QFETCH(int, start);
    QFETCH(int, length);
    KSPasswordField field;
    connect(&field, &WTTextfield::controlTextDidChange, &field, [&field] {
        if (field.text().contains(u'!'))
            field.putBack(u"secret"_s);
    });
    field.showText(u"secret"_s);
    field.setSelection(start, length);
    const int cursor = field.cursorPosition();
    QTest::keyClicks(&field, u"!!"_s);
    QCOMPARE(field.text(), u"secret"_s);
    QCOMPARE(field.cursorPosition(), cursor);
    QTest::keyClicks(&field, u"X"_s);
    QTEST(field.text(), "after");
}

void FieldTests::inputMethodsKeepOff()
{
    KSPasswordField field;
    for (const bool shows : {false, true, false}) {
        field.setShowsText(shows);
        const auto hints = Qt::InputMethodHints(field.inputMethodQuery(Qt::ImHints).toInt());
        QVERIFY(hints.testFlags(Qt::ImhHiddenText | Qt::ImhSensitiveData | Qt::ImhNoPredictiveText |
                                Qt::ImhNoAutoUppercase));
    }
}

void FieldTests::strength_data()
{
    QTest::addColumn<QString>("password");
    QTest::addColumn<double>("strength");

    QTest::newRow("empty") << u""_s << 0.0;
    QTest::newRow("four classes") << u"aB1!"_s << 0.25;
    QTest::newRow("twelve times the same") << u"aaaaaaaaaaaa"_s << 0.0;
    QTest::newRow("twelve different") << u"abcdefghijkl"_s << 2 * 12 / 64.0;
    QTest::newRow("eleven different") << u"abcdefghijk"_s << 11 / 64.0;
    QTest::newRow("twelve, too few different") << u"abcabdabcabe"_s << 12 / 64.0;
    QTest::newRow("repeated run") << u"wordB1wordB1"_s << 3 * 12 / 64.0;
    QTest::newRow("repeated run, other case") << u"abcdXABCD"_s << 1 * 9 / 64.0;
    QTest::newRow("letters without case") << u"密码密"_s << 3 / 64.0;
    QTest::newRow("composed characters count once") << u"e\u0301e\u0301e\u0301e\u0301e\u0301e\u0301"_s << 12 / 64.0;
    QTest::newRow("at most one") << u"aB1!cD2?eF3.gH4,iJ5"_s << 1.0;
}

void FieldTests::strength()
{
    QFETCH(QString, password);
    QFETCH(double, strength);
    QCOMPARE(KSPasswordField::strengthOfPassword(password), strength);
}

void FieldTests::description_data()
{
    QTest::addColumn<QString>("password");
    QTest::addColumn<QString>("description");
    QTest::addColumn<int>("level");

    QTest::newRow("empty") << u""_s << u""_s << 0;
    QTest::newRow("in the word list, other case") << u"PassWord123"_s << u"too common"_s << 1;
    QTest::newRow("short and common") << u"12345"_s << u"too common"_s << 1;
    QTest::newRow("short") << u"aB1!xyz"_s << u"too short"_s << 1;
    QTest::newRow("one class") << u"mkwpqzrt"_s << u"insecure"_s << 1;
    QTest::newRow("two classes") << u"mkwpqz42"_s << u"weak"_s << 2;
    QTest::newRow("three classes") << u"Mkwpqz42"_s << u"fair"_s << 3;
    QTest::newRow("long and mixed") << u"Mkwpqz42-tuv"_s << u"strong"_s << 4;
}

void FieldTests::description()
{
    QFETCH(QString, password);
    QTEST(KSPasswordField::descriptionOfPassword(password), "description");
    QTEST(KSPasswordField::levelOfPassword(password), "level");

    KSPasswordField field;
    PasswordStrengthView view(&field);
    field.setText(password);
    QTEST(view.word(), "description");
}

void FieldTests::noticesCapsLock_data()
{
    QTest::addColumn<QString>("letter");
    QTest::addColumn<bool>("shift");
    QTest::addColumn<bool>("on");

    QTest::newRow("capital alone") << u"A"_s << false << true;
    QTest::newRow("capital with shift") << u"A"_s << true << false;
    QTest::newRow("small alone") << u"a"_s << false << false;
    QTest::newRow("small with shift") << u"a"_s << true << true;
    QTest::newRow("digit tells nothing") << u"1"_s << true << false;
}

void FieldTests::noticesCapsLock()
{
    QFETCH(QString, letter);
    QFETCH(bool, shift);
    QFETCH(bool, on);
    KSPasswordField field;
    PasswordStrengthView view(&field);
    QTest::sendKeyEvent(QTest::Click, &field, Qt::Key_unknown, letter, shift ? Qt::ShiftModifier : Qt::NoModifier);
    QCOMPARE(field.capsLock(), on);
    QCOMPARE(view.findChild<LiveLabel *>()->isVisibleTo(&view), on);
    QTest::keyClick(&field, Qt::Key_CapsLock);
    QCOMPARE(field.capsLock(), !on);
}

void FieldTests::progressIsCutAndSpoken_data()
{
    QTest::addColumn<int>("set");
    QTest::addColumn<int>("shown");

    QTest::newRow("below") << -1 << 0;
    QTest::newRow("inside") << 35 << 35;
    QTest::newRow("above") << 101 << 100;
}

void FieldTests::progressIsCutAndSpoken()
{
    QFETCH(int, set);
    QFETCH(int, shown);
    WTProgressView bar;
    bar.setProgress(50);
    bar.setProgress(set);
    QCOMPARE(bar.progress(), shown);
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&bar);
    QCOMPARE(interface->role(), QAccessible::ProgressBar);
    QCOMPARE(interface->valueInterface()->currentValue().toInt(), shown);
}

QTEST_MAIN(FieldTests)
#include "FieldTests.moc"
