#include "ListBed.h"
#include "LogCollector.h"
#include "Rows.h"
#include "WTApp.h"
#include "WTWiFiListView.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

/// The fields of the list screen, and the ways out of it.
class WiFiListFieldsTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void undoneEditKeepsTheFilledPassword()
    {
        ListBed bed;
        WTApp::shared().selectedPassword.reset();
        bed.hostWiFi.holdsSecrets = true;
        bed.enter([&] { bed.password().setFocus(); });
        bed.hostWiFi.answerSecrets();
        QTRY_COMPARE(bed.password().text(), u"secret of Office"_s);
        QTest::sendKeyEvent(QTest::Click, &bed.password(), Qt::Key_unknown, u"é"_s, Qt::NoModifier);
        QCOMPARE(bed.password().text(), u"secret of Office"_s);
    }

    void onlyTheFirstRowBringsAPassword()
    {
        ListBed bed;
        bed.enter();
        QCOMPARE(bed.password().text(), u"secret of Office"_s);
        bed.choose(1);
        QCOMPARE(bed.name().text(), u"Home"_s);
        QCOMPARE(bed.password().text(), QString());
        QCOMPARE(bed.list().selectedWiFi()->security, 7);
        QTest::keyClick(&bed.rows(), Qt::Key_Up);
        QCOMPARE(bed.name().text(), u"Office"_s);
        QCOMPARE(bed.password().text(), u"secret of Office"_s);
        // A typed name is the choice from then on, with the security of an open network.
        bed.type(bed.name(), u"Hidden"_s);
        QVERIFY(bed.list().editedSSID());
        QCOMPARE(bed.list().selectedWiFi()->SSID, u"Hidden"_s);
        QCOMPARE(bed.list().selectedWiFi()->security, 0);
    }

    void capsLockIsSaidBelowThePassword()
    {
        ListBed bed;
        bed.enter();
        bed.choose(1);
        const QString help = bed.password().accessibleDescription();
        QTest::keyClick(&bed.password(), Qt::Key_CapsLock);
        QCOMPARE(bed.password().accessibleDescription(), u"大写锁定已打开"_s);
        // Once the password is too long, that is what matters.
        bed.type(bed.password(), QString(32, u'P'));
        QVERIFY(bed.password().accessibleDescription().contains(u"31"_s));
        bed.password().clear();
        QCOMPARE(bed.password().accessibleDescription(), u"大写锁定已打开"_s);
        QTest::keyClick(&bed.password(), Qt::Key_CapsLock);
        QCOMPARE(bed.password().accessibleDescription(), help);
    }

    void hiddenCharactersShowAndStopNext()
    {
        ListBed bed;
        const QString hostile = u"Ca\nfe"_s;
        bed.hostWiFi.networks = std::vector{ListBed::office, VisibleNetwork{hostile, 1, 60}};
        bed.enter();
        bed.choose(1);
        QCOMPARE(bed.name().text(), u"Ca\\u000Afe"_s);
        QCOMPARE(bed.list().selectedWiFi()->SSID, hostile);
        QVERIFY(!bed.next().isEnabled());
        QCOMPARE(bed.name().accessibleDescription(), u"名称含有控制字符，无法发送给打印机。"_s);
        bed.type(bed.name(), u"Cafe"_s);
        QVERIFY(bed.next().isEnabled());
    }

    void typingFindsANameWithBlanks()
    {
        ListBed bed;
        bed.hostWiFi.networks =
            std::vector{ListBed::office, VisibleNetwork{u"My one"_s, 7, 60}, VisibleNetwork{u"My two"_s, 7, 50}};
        bed.enter();
        bed.rows().setFocus();
        QTest::keyClicks(&bed.rows(), u"my t"_s);
        QCOMPARE(bed.name().text(), u"My two"_s);
        QCOMPARE(bed.password().accessibleDescription(), u"此网络需要密码，您还没有输入。"_s);
    }

    void refusals()
    {
        eachRow(
            {
                {"printing", true, u"pw"_s, u"打印端口被占用，无法配置打印机"_s, u"warning: printer is busy now"_s},
                {"32 bytes", false, QString(32, u'p'), u"31"_s, u"warning: password over 31 bytes refused"_s},
            },
            [&](bool busy, const QString &password, const QString &alert, const QString &line) {
                ListBed bed;
                bed.enter();
                bed.paste(bed.password(), password);
                if (busy)
                    bed.spooler.queues = {{"QZ100_USB", "4"}};
                LogCollector log;
                bed.click("btn_nextStep");
                QCOMPARE(bed.shown(), QByteArray("WTWiFiListView"));
                QVERIFY(bed.alert());
                QVERIFY2(bed.alert()->informativeText().contains(alert), qPrintable(bed.alert()->informativeText()));
                QVERIFY(log.lines().contains(line));
                QVERIFY(log.lines().filter(password).isEmpty());
            });
    }
};

QTEST_MAIN(WiFiListFieldsTests)
#include "WiFiListFieldsTests.moc"
