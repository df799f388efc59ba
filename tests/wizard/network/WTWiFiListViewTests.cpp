#include "ListBed.h"
#include "LogCollector.h"
#include "Rows.h"
#include "WTApp.h"
#include "WTWiFiListView.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>

using namespace Qt::Literals::StringLiterals;

/// The list, the permission to see it, and what the host tells late.
class WTWiFiListViewTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void permissionOnEntry()
    {
        using enum ScanPermission;
        const QByteArray start = "WTStartView", list = "WTWiFiListView";
        eachRow(
            {
                {"restricted", true, Restricted, 1, false, false, start},
                {"denied", true, Denied, 0, false, true, list},
                {"allowed", true, Allowed, 1, true, false, list},
                {"unknown", true, Unknown, 1, false, false, list},
                {"not needed", false, Denied, 1, true, false, list},
            },
            [&](bool needed, const ScanPermission &permission, int scans, bool asksSecret, bool alerts,
                const QByteArray &shown) {
                ListBed bed(permission);
                WTApp::usePorts(bed.hostWiFi, bed.desktop, {.scanNeedsPermission = needed});
                LogCollector log;
                if (needed)
                    bed.enter();
                else
                    bed.click("netxtBtn"); // Nothing is waited for.

                QCOMPARE(bed.hostWiFi.scans, scans);
                QTRY_COMPARE(!bed.hostWiFi.askedSecrets.isEmpty(), asksSecret);
                QCOMPARE(bed.shown(), shown);
                QCOMPARE(bed.alert() != nullptr, alerts);
                const bool goesOnAsUnknown = permission == Restricted || permission == Unknown;
                const QString unknown = u"warning: 定位服务：未知状态 ⚠️ %1 ⚠️"_s.arg(int(permission));
                QCOMPARE(log.lines().contains(unknown), goesOnAsUnknown);
                if (alerts) {
                    bed.alert()->buttons().constLast()->click();
                    QTRY_COMPARE(bed.shown(), start);
                    QVERIFY(!bed.desktop.panelWasOpened());
                }
            });
    }

    void silenceIsSaidAndRefreshAsksAgain()
    {
        const auto words = [](ListBed &bed, const char *name) {
            const auto *label = qobject_cast<QLabel *>(bed.widget(name));
            return label->isVisible() ? label->text() : QString();
        };
        const auto silence = u"系统尚未回答是否允许查找网络。请点击“刷新”再试一次，或直接输入名称。"_s;
        ListBed bed;
        bed.hostWiFi.tellsPermission = false;
        LogCollector log;
        bed.enter([&] { QCOMPARE(words(bed, "activeView"), u"正在等待系统许可…"_s); });
        QCOMPARE(words(bed, "activeView"), QString());
        QCOMPARE(words(bed, "listNote"), silence);
        QVERIFY(bed.widget("updateButton")->hasFocus());
        QCOMPARE(log.lines().filter(u"no answer within 5 seconds"_s).size(), 1);

        // The checker is gone: a permission that comes now reaches nobody until Refresh asks again.
        bed.hostWiFi.changePermission(ScanPermission::Allowed);
        QCoreApplication::processEvents();
        QCOMPARE(bed.hostWiFi.scans, 0);
        // One who types keeps the keyboard.
        bed.type(bed.name(), u"Mine"_s);
        bed.clickAndWait("updateButton", [&] { bed.name().setFocus(); });
        QCOMPARE(words(bed, "listNote"), silence);
        QVERIFY(bed.name().hasFocus());
        bed.hostWiFi.tellsPermission = true;
        bed.clickAndWait("updateButton");
        QCOMPARE(bed.hostWiFi.scans, 1);
        QCOMPARE(bed.shownNames().size(), 3);
        QCOMPARE(words(bed, "listNote"), QString());

        bed.hostWiFi.networks = std::vector<VisibleNetwork>{};
        bed.clickAndWait("updateButton");
        QCOMPARE(words(bed, "listNote"), u"没有找到网络。请点击“刷新”再找一次，或直接输入名称。"_s);
    }

    void settingsOpenFromTheAlert()
    {
        ListBed bed(ScanPermission::Denied);
        bed.enter();
        bed.alert()->buttons().constFirst()->click();
        QTRY_VERIFY(bed.desktop.panelWasOpened());
        QCOMPARE(bed.shown(), QByteArray("WTStartView"));

        // A desktop without them says so ahead of leaving.
        bed.desktop.hasPanels = false;
        bed.enter();
        bed.alert()->buttons().constFirst()->click();
        QTRY_VERIFY(bed.alert() && bed.alert()->informativeText().contains(u"无法从这里打开系统设置"_s));
        QCOMPARE(bed.shown(), QByteArray("WTWiFiListView"));
        bed.alert()->buttons().constFirst()->click();
        QTRY_COMPARE(bed.shown(), QByteArray("WTStartView"));
    }

    void whatIsTypedDuringASearchStays()
    {
        ListBed bed;
        bed.enter();
        bed.choose(2);
        bed.hostWiFi.holdsScans = true;
        bed.clickAndWait("updateButton", [&] {
            QCOMPARE(bed.list().selectRow(), 0);
            bed.type(bed.name(), u"Mine"_s);
            bed.type(bed.password(), u"my password"_s);
        });
        bed.hostWiFi.answerScans();
        QTRY_VERIFY(bed.list().enableRefresh());
        QCOMPARE(bed.name().text(), u"Mine"_s);
        QCOMPARE(bed.password().text(), u"my password"_s);
        QVERIFY(bed.next().isEnabled());
    }

    void onlyRefreshReadsTheHostState()
    {
        ListBed bed;
        bed.enter();
        QCOMPARE(bed.list().currentSSID(), u"Office"_s);
        bed.hostWiFi.now = ListBed::joinedTo(u"Cafe"_s);

        bed.click("previous");
        LogCollector log;
        bed.enter();
        QCOMPARE(log.lines().filter(u"selectedSSID:"_s).size(), 1);

        bed.hostWiFi.now = ListBed::joinedTo(u"Home"_s);
        log.clear();
        bed.clickAndWait("updateButton");
        QCOMPARE(log.lines().filter(u"selectedSSID:"_s), QStringList{u"info: selectedSSID:Home"_s});
        QCOMPARE(bed.name().text(), u"Home"_s);
        QCOMPARE(bed.password().text(), u"secret of Home"_s);
    }

    void refreshWhileLoadingIsRefused()
    {
        ListBed bed;
        bed.hostWiFi.holdsScans = true;
        bed.enter();
        LogCollector log;
        bed.list().updateWifiList();
        QCOMPARE(log.lines(), (QStringList{u"info: start fetch WiFi list btn"_s, u"error: 🈲 Disable Click"_s}));
        QCOMPARE(bed.hostWiFi.scans, 1);
        bed.hostWiFi.answerScans();
        QTRY_VERIFY(bed.list().enableRefresh());
        QCOMPARE(bed.shownNames().first(), u"Office"_s);
    }

    void refreshKeepsTheKeyboard()
    {
        ListBed bed;
        bed.enter();
        bed.hostWiFi.holdsScans = true;
        QWidget *refresh = bed.widget("updateButton");
        refresh->setFocus();
        bed.clickAndWait("updateButton", [&] { QVERIFY(bed.rows().hasFocus()); });
        bed.hostWiFi.answerScans();
        QTRY_VERIFY(refresh->hasFocus());
    }

    void refusedTwiceAlertsOnce()
    {
        ListBed bed(ScanPermission::Denied);
        bed.enter([&] {
            bed.hostWiFi.changePermission(ScanPermission::Denied);
            QCoreApplication::processEvents();
        });
        QCOMPARE(bed.window().findChildren<QMessageBox *>().size(), 1);
    }

    void failedFetchKeepsTheList()
    {
        ListBed bed;
        bed.enter();
        const QStringList before = bed.shownNames();
        bed.hostWiFi.networks = WTError{u"Test"_s, 1, u"the radio of wlan0 is off"_s};
        LogCollector log;
        bed.clickAndWait("updateButton");
        QCOMPARE(bed.shownNames(), before);
        QVERIFY(log.lines().contains(u"info: fetchWIFIList errror:the radio of wlan0 is off"_s));
        QVERIFY(bed.list().enableRefresh());
    }

    void typedPasswordOutlivesALateSecret()
    {
        ListBed bed;
        WTApp::shared().selectedPassword.reset();
        bed.hostWiFi.holdsSecrets = true;
        bed.enter();
        QCOMPARE(bed.password().text(), QString());
        bed.type(bed.password(), u"mine"_s);
        QSignalSpy arrived(&WTApp::shared(), &WTApp::storedPasswordArrived);
        bed.hostWiFi.answerSecrets();
        QTRY_COMPARE(arrived.count(), 1);
        QCOMPARE(bed.password().text(), u"mine"_s);
    }

    void leavingDuringTheWait()
    {
        eachRow(
            {
                {"back", "previous", "WTStartView"},
                {"next", "btn_nextStep", "WTInstallingView"},
            },
            [&](const char *button, const char *shown) {
                ListBed bed;
                LogCollector log;
                QByteArray shownThen;
                bed.enter([&] {
                    bed.click(button);
                    shownThen = bed.shown();
                    // What the host says now is for a screen that is not there.
                    bed.hostWiFi.changePermission(ScanPermission::Denied);
                    QCoreApplication::processEvents();
                });
                QCOMPARE(shownThen, shown);
                QVERIFY(log.lines().contains(u"warning: current view is not visible!"_s));
                QVERIFY(!bed.alert());
            });
    }
};

QTEST_MAIN(WTWiFiListViewTests)
#include "WTWiFiListViewTests.moc"
