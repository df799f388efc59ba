#include "LogCollector.h"
#include "Rows.h"
#include "WTButton.h"
#include "WTCompleteView.h"
#include "WTConfigFailedView.h"
#include "WTConfigStateInfoView.h"
#include "WTFailedView.h"
#include "WTHoverView.h"
#include "WTWpsLinkStateView.h"
#include "WizardBed.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QMessageBox>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace
{

/// The two WPS outcome screens by the names of their widgets.
struct OutcomeScreen {
    const char *className;
    const char *success;
    const char *failure;
    const char *finish;
    bool logs;
};

constexpr OutcomeScreen panelScreen{"WTWpsLinkStateView", "wpsSuccessView", "wpsFailedView", "finishBtn", true};
constexpr OutcomeScreen lightScreen{"WTConfigStateInfoView", "lightSuccessView", "lightFailView", "stateFinishBtn",
                                    false};

WTView *open(WizardBed &bed, const QByteArray &className)
{
    for (WTView *view : bed.window().findChildren<WTView *>()) {
        if (view->metaObject()->className() == className) {
            bed.window().setContentView(view);
            return view;
        }
    }
    return nullptr;
}

/// What a screen reader finds below an element: the names of all that shows.
QStringList spoken(QAccessibleInterface *element)
{
    QStringList names{element->text(QAccessible::Name)};
    for (int index = 0; index < element->childCount(); ++index) {
        if (QAccessibleInterface *child = element->child(index); !child->state().invisible)
            names += spoken(child);
    }
    return names;
}

} // namespace

/// The screens a person ends on.
class OutcomeTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wpsOutcome()
    {
        eachRow(
            {
                {"success", true, 0, false},
                {"success, panel", true, 1, true},
                {"success, ticked twice", true, 2, false},
                {"failure, panel", false, 1, true},
            },
            [&](bool success, int ticks, bool opensPanel) {
                for (const OutcomeScreen &screen : {panelScreen, lightScreen}) {
                    WizardBed bed;
                    WTView *view = open(bed, screen.className);
                    QVERIFY(!bed.widget(screen.finish)->isEnabled());
                    bed.click(success ? screen.success : screen.failure);
                    QCOMPARE(bed.widget(screen.finish)->isEnabled(), success);
                    for (int tick = 0; tick < ticks; ++tick)
                        bed.click("addPrinter");
                    auto *box = qobject_cast<WTButton *>(bed.widget("addPrinter"));
                    QCOMPARE(box->imageName(), ticks % 2 == 1 ? u"icon_selected 1"_s : u"Rectangle 394"_s);
                    QCOMPARE(QAccessible::queryAccessibleInterface(box)->role(), QAccessible::CheckBox);
                    QCOMPARE(bool(QAccessible::queryAccessibleInterface(box)->state().checked), ticks % 2 == 1);

                    LogCollector log;
                    if (auto *panel = qobject_cast<WTWpsLinkStateView *>(view))
                        panel->finish();
                    else
                        qobject_cast<WTConfigStateInfoView *>(view)->finishAction();
                    // "Done" is written before the call returns, since the process may end right after.
                    QCOMPARE(log.writtenSoFar().contains(u"error: Done"_s), screen.logs);
                    QCOMPARE(log.lines().contains(u"info: Open System Add Printer Tab"_s), screen.logs && opensPanel);
                    QCOMPARE(bed.desktop.panelWasOpened(), opensPanel);
                    QCOMPARE(bed.processEnds, success ? 1 : 0);
                }
            });
    }

    void failureAfterSuccessTakesTheFinishBack()
    {
        WizardBed bed;
        open(bed, lightScreen.className);
        LogCollector log;
        bed.click("lightSuccessView");
        bed.click("lightFailView");
        QVERIFY(!bed.widget("stateFinishBtn")->isEnabled());
        QVERIFY(!qobject_cast<WTHoverView *>(bed.widget("lightSuccessView"))->isSelect());
        QTest::keyClick(bed.window().windowHandle(), Qt::Key_Return);
        QCOMPARE(bed.processEnds, 0);
        QCOMPARE(log.lines(), QStringList());
    }

    void panelOutcomeLogs()
    {
        WizardBed bed;
        open(bed, panelScreen.className);
        LogCollector log;
        bed.click("wpsFailedView");
        bed.click("wpsSuccessView");
        bed.click("addPrinter");
        bed.click("addPrinter");
        QCOMPARE(log.lines(), (QStringList{u"info: Selected Connect Failure"_s, u"info: Selected Connect Success"_s,
                                           u"info: Add Printer ? YES"_s, u"info: Add Printer ? NO"_s}));
    }

    void completionOpensThePanelOnlyWhenTicked()
    {
        for (const int ticks : {0, 1, 2}) {
            WizardBed bed;
            bed.window().setContentView(bed.screen<WTCompleteView>());
            QVERIFY(bed.widget("complateBtn")->hasFocus());
            const auto *message = bed.widget("title")->findChild<QLabel *>(u"message"_s);
            QCOMPARE(message->text(), u"恭喜，您完成了无线网络配置！"_s);
            for (int tick = 0; tick < ticks; ++tick)
                bed.click("addPrinter");
            LogCollector log;
            QTimer::singleShot(0, &bed.window(), [&bed] { bed.click("complateBtn"); });
            QCOMPARE(QCoreApplication::exec(), 0);
            QCOMPARE(bed.desktop.panelWasOpened(), ticks == 1);
            QCOMPARE(log.lines().first(), u"info: 🏷"_s);
        }
    }

    void missingPanelIsSaidBeforeTheEnd()
    {
        eachRow(
            {
                {"completion", "WTCompleteView", nullptr, "complateBtn"},
                {"panel", panelScreen.className, panelScreen.success, panelScreen.finish},
                {"light", lightScreen.className, lightScreen.success, lightScreen.finish},
            },
            [&](const char *screen, const char *success, const char *finish) {
                WizardBed bed;
                bed.desktop.hasPanels = false;
                open(bed, screen);
                if (success)
                    bed.click(success);
                bed.click("addPrinter");
                bed.click(finish);
                auto *alert = bed.window().findChild<QMessageBox *>();
                QVERIFY(alert->informativeText().contains(u"http://localhost:631"_s));
                QCOMPARE(bed.processEnds, 0);
                QTimer::singleShot(0, alert, [alert] { alert->buttons().constFirst()->click(); });
                if (success)
                    QTRY_COMPARE(bed.processEnds, 1);
                else
                    QCOMPARE(QCoreApplication::exec(), 0);
            });
    }

    void failureScreenSaysWhatHappened()
    {
        WizardBed bed;
        auto *failed = bed.screen<WTFailedView>();
        failed->setShowWiFiCapabilityError(true);
        failed->setWifiCapabilityError(1);
        bed.window().setContentView(failed);
        const auto *message = bed.widget("errorMessage")->findChild<QLabel *>(u"message"_s);
        QCOMPARE(message->text(), u"Wi-Fi故障，打印机配置失败。"_s);
        QVERIFY(bed.widget("logFolder")->isVisible());
        QVERIFY(qobject_cast<QLabel *>(bed.widget("logFolder"))
                    ->text()
                    .contains(u"file:///home/person/.local/state/Logs/wifitool\""_s));

        // Another reason is shown when the screen appears again.
        failed->setShowWiFiCapabilityError(false);
        bed.window().setContentView(failed);
        QCOMPARE(message->text(), u"配网失败"_s);
        QTimer::singleShot(0, &bed.window(), [&bed] { bed.click("complateBtn"); });
        QCOMPARE(QCoreApplication::exec(), 0);
    }

    void wayBackSaysWhy()
    {
        WizardBed bed;
        auto *failed = bed.screen<WTConfigFailedView>();
        failed->setCause({.cause = u"It is held."_s, .advice = u"Close it."_s, .details = u"WTCOM 31"_s});
        bed.window().setContentView(failed);
        const auto text = [&](const char *name) { return qobject_cast<QLabel *>(bed.widget(name))->text(); };
        QCOMPARE(text("cause"), u"It is held."_s);
        QVERIFY(failed->findChildren<QLabel *>().contains(qobject_cast<QLabel *>(bed.widget("cause"))));
        const QStringList read = spoken(QAccessible::queryAccessibleInterface(&bed.window()));
        QVERIFY(read.contains(u"It is held."_s) && read.contains(u"Close it."_s));
        QVERIFY(!bed.widget("detailsLine")->isVisible());
        QTest::mouseClick(bed.widget("details"), Qt::LeftButton);
        QVERIFY(bed.widget("detailsLine")->isVisible());
        bed.click("copyDetails");
        QCOMPARE(QGuiApplication::clipboard()->text(), u"WTCOM 31"_s);

        failed->setCause({});
        QVERIFY(!bed.widget("cause")->isVisible() && !bed.widget("details")->isVisible());
    }

    void completionShowsTheAddress()
    {
        eachRow(
            {
                {"reached", PrinterReach::Answers, u"此电脑可以连上打印机。"_s},
                {"no network printer", PrinterReach::Refuses, u"IPP"_s},
                {"kept apart", PrinterReach::Silent, u"访客网络"_s},
            },
            [&](const PrinterReach &reach, const QString &said) {
                WizardBed bed;
                bed.spooler.reach = reach;
                auto *complete = bed.screen<WTCompleteView>();
                complete->setAddress(u"192.168.1.77"_s);
                bed.window().setContentView(complete);
                QCOMPARE(qobject_cast<QLabel *>(bed.widget("printerAddress"))->text(), u"192.168.1.77"_s);
                const auto *line = qobject_cast<QLabel *>(bed.widget("reach"));
                QTRY_VERIFY(line->text().contains(said));
                bed.click("copyAddress");
                QCOMPARE(QGuiApplication::clipboard()->text(), u"192.168.1.77"_s);

                complete->setAddress({});
                QVERIFY(!bed.widget("printerAddress")->isVisible());
            });
    }
};

QTEST_MAIN(OutcomeTests)
#include "OutcomeTests.moc"
