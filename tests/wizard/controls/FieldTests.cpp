#include "InfoList.h"
#include "KSPasswordField.h"
#include "LiveLabel.h"
#include "Palette.h"
#include "PasswordStrengthView.h"
#include "Rows.h"
#include "WTCustomTextFieldFromatter.h"
#include "WTProgressView.h"
#include "WTTextfield.h"

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QSignalSpy>

using namespace Qt::Literals::StringLiterals;

/// Text fields, their formatter, the password field's ratings, the progress bar.
class FieldTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { InfoList::setResourceFolder(QStringLiteral(WT_RESOURCE_FOLDER)); }

    void formatterRefusesWhatIsTooLong()
    {
        const qint32 none = WTCustomTextFieldFromatter().maximumLength();
        const QString full(64, u'x');
        eachRow(
            {
                {"65th character", 64, full, u"y"_s, full},
                {"paste that is too long", 64, u"ab"_s, full, u"ab"_s},
                {"no limit", none, QString(), QString(30000, u'x'), QString(30000, u'x')},
            },
            [&](const qint32 &limit, const QString &before, const QString &pasted, const QString &after) {
                WTCustomTextFieldFromatter formatter;
                formatter.setMaximumLength(limit);
                WTTextfield field;
                field.setText(before);
                field.setValidator(&formatter);
                QGuiApplication::clipboard()->setText(pasted);
                field.paste();
                QCOMPARE(field.text(), after);
            });
    }

    void fieldTellsWhatHappensToIt()
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

    void refusedKeyLeavesTheCursor()
    {
        eachRow(
            {
                {"in the middle", 2, 0, u"seXcret"_s},
                {"over a selection made backwards", 3, -2, u"sXret"_s},
            },
            [&](int start, int length, const QString &after) {
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
                QCOMPARE(field.text(), after);
            });
    }

    void inputMethodsKeepOff()
    {
        KSPasswordField field;
        for (const bool shows : {false, true, false}) {
            field.setShowsText(shows);
            const auto hints = Qt::InputMethodHints(field.inputMethodQuery(Qt::ImHints).toInt());
            QVERIFY(hints.testFlags(Qt::ImhHiddenText | Qt::ImhSensitiveData | Qt::ImhNoPredictiveText |
                                    Qt::ImhNoAutoUppercase));
        }
    }

    void strength()
    {
        eachRow(
            {
                {"four classes", u"aB1!"_s, 0.25},
                {"twelve times the same", u"aaaaaaaaaaaa"_s, 0.0},
                {"twelve different", u"abcdefghijkl"_s, 2 * 12 / 64.0},
                {"twelve, too few different", u"abcabdabcabe"_s, 12 / 64.0},
                {"repeated run", u"wordB1wordB1"_s, 3 * 12 / 64.0},
                {"at most one", u"aB1!cD2?eF3.gH4,iJ5"_s, 1.0},
            },
            [&](const QString &password, double strength) {
                QCOMPARE(KSPasswordField::strengthOfPassword(password), strength);
            });
    }

    void description()
    {
        eachRow(
            {
                {"empty", u""_s, u""_s, 0},
                {"in the word list, other case", u"PassWord123"_s, u"too common"_s, 1},
                {"short", u"aB1!xyz"_s, u"too short"_s, 1},
                {"one class", u"mkwpqzrt"_s, u"insecure"_s, 1},
                {"three classes", u"Mkwpqz42"_s, u"fair"_s, 3},
                {"long and mixed", u"Mkwpqz42-tuv"_s, u"strong"_s, 4},
            },
            [&](const QString &password, const QString &description, int level) {
                QCOMPARE(KSPasswordField::descriptionOfPassword(password), description);
                QCOMPARE(KSPasswordField::levelOfPassword(password), level);

                KSPasswordField field;
                PasswordStrengthView view(&field);
                field.setText(password);
                QCOMPARE(view.word(), description);
            });
    }

    void noticesCapsLock()
    {
        eachRow(
            {
                {"capital alone", u"A"_s, false, true},
                {"capital with shift", u"A"_s, true, false},
                {"small with shift", u"a"_s, true, true},
                {"digit tells nothing", u"1"_s, true, false},
            },
            [&](const QString &letter, bool shift, bool on) {
                KSPasswordField field;
                PasswordStrengthView view(&field);
                QTest::sendKeyEvent(QTest::Click, &field, Qt::Key_unknown, letter,
                                    shift ? Qt::ShiftModifier : Qt::NoModifier);
                QCOMPARE(field.capsLock(), on);
                QCOMPARE(view.findChild<LiveLabel *>()->isVisibleTo(&view), on);
                QTest::keyClick(&field, Qt::Key_CapsLock);
                QCOMPARE(field.capsLock(), !on);
            });
    }

    void progressIsCutAndSpoken()
    {
        eachRow(
            {
                {"below", -1, 0},
                {"inside", 35, 35},
                {"above", 101, 100},
            },
            [&](int set, int shown) {
                WTProgressView bar;
                bar.setProgress(50);
                bar.setProgress(set);
                QCOMPARE(bar.progress(), shown);
                QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&bar);
                QCOMPARE(interface->role(), QAccessible::ProgressBar);
                QCOMPARE(interface->valueInterface()->currentValue().toInt(), shown);
                bar.resize(1000, bar.sizeHint().height());
                const QImage picture = bar.grab().toImage();
                const auto isFilled = [&](int percent) {
                    return picture.pixelColor(percent * 10, picture.height() / 2) == Palette::focusBlue;
                };
                QVERIFY(shown == 0 || isFilled(shown - 2));
                QVERIFY(shown == 100 || !isFilled(shown + 2));
            });
    }
};

QTEST_MAIN(FieldTests)
#include "FieldTests.moc"
