#include "AppDelegate.h"
#include "LogCollector.h"
#include "Rows.h"
#include "WTApp.h"
#include "WTHoverView.h"
#include "WTManager.h"
#include "WTNetworkWithManualAddition.h"
#include "WizardBed.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace
{

class RaiseCount : public QObject
{
public:
    int count = 0;

    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::ZOrderChange ? 1 : 0;
        return false;
    }
};

} // namespace

/// Which screen follows which, with the mouse, and what the log says of it.
class ScreenMapTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void forwardAndBack()
    {
        eachRow(
            {
                {"router button", QStringList{u"selectWPS"_s, u"netxtBtn"_s, u"nextBtn"_s, u"nextButton"_s},
                 QList<QByteArray>{"", "WTSetWPSMethodView", "WTUseWPSSetWifiView", "WTConfigStateInfoView"}},
                {"menu, PIN",
                 QStringList{u"selectWPS"_s, u"netxtBtn"_s, u"selectPrinterMethod"_s, u"nextBtn"_s, u"selectPIN"_s,
                             u"nextBtn"_s, u"nextBtn"_s},
                 QList<QByteArray>{"", "WTSetWPSMethodView", "", "WTSelectPBCModelView", "", "WTSetPINConfigView",
                                   "WTWpsLinkStateView"}},
            },
            [&](const QStringList &clicks, const QList<QByteArray> &screens) {
                WizardBed bed;
                LogCollector log;
                QList<QByteArray> way{bed.shown()};
                for (qsizetype index = 0; index < clicks.size(); ++index) {
                    bed.click(clicks[index].toLatin1().constData());
                    if (!screens[index].isEmpty()) {
                        way << screens[index];
                        QVERIFY(log.lines().contains(u"info: go to 👉🏻"_s + QString::fromLatin1(screens[index])));
                    }
                    QCOMPARE(bed.shown(), way.last());
                }
                QVERIFY(log.lines().contains(u"info: wt_stopDiscoverPrinter"_s));
                while (way.size() > 1) {
                    way.removeLast();
                    bed.click("previous");
                    QCOMPARE(bed.shown(), way.last());
                    QCOMPARE(log.lines().filter(u"pre step"_s).last(),
                             u"info: pre step👉🏻"_s + QString::fromLatin1(way.last()));
                }
            });
    }

    void doubleClickActsOnce()
    {
        WizardBed bed;
        bed.click("selectWPS");
        const QWidget *next = bed.widget("netxtBtn");
        const QPoint middle = next->mapTo(&bed.window(), next->rect().center());
        QTest::mouseDClick(bed.window().windowHandle(), Qt::LeftButton, Qt::NoModifier, middle);
        QCOMPARE(bed.shown(), "WTSetWPSMethodView");
    }

    void radioRuleAndItsLogLine()
    {
        const QStringList wps{u"selectWPS"_s, u"netxtBtn"_s};
        const QStringList menu = wps + QStringList{u"selectPrinterMethod"_s, u"nextBtn"_s};
        eachRow(
            {
                {"USB", QStringList(), u"selectUSB"_s, u"selectWPS"_s, u"USB"_s},
                {"WPS", QStringList(), u"selectWPS"_s, u"selectUSB"_s, u"WPS"_s},
                {"button", wps, u"selectWPSMethod"_s, u"selectPrinterMethod"_s, u"WiFi Btn"_s},
                {"menu", wps, u"selectPrinterMethod"_s, u"selectWPSMethod"_s, u"Printer Menu"_s},
                {"push button", menu, u"selectWPS"_s, u"selectPIN"_s, u"PIN"_s},
                {"PIN", menu, u"selectPIN"_s, u"selectWPS"_s, u"PBC"_s},
            },
            [&](const QStringList &wayThere, const QString &clicked, const QString &other, const QString &label) {
                WizardBed bed;
                for (const QString &name : wayThere)
                    bed.click(name.toLatin1().constData());
                const auto tile = [&bed](const QString &name) {
                    return qobject_cast<WTHoverView *>(bed.widget(name.toLatin1().constData()));
                };
                LogCollector log;
                for (int time = 0; time < 2; ++time) {
                    bed.click(clicked.toLatin1().constData());
                    QVERIFY(tile(clicked)->isSelect());
                    QVERIFY(!tile(other)->isSelect());
                    QCOMPARE(log.lines().last(), u"info: Selected "_s + label);
                }
            });
    }

    void usbLeadsToTheFirstPrinter()
    {
        ModelIdentity second;
        second.model = u"QZ200"_s;
        second.serialNumber = u"QM0002"_s;
        WizardBed bed({ModelIdentity(), second});
        QVERIFY(bed.findPrinters());
        const WTPrinterPtr first = WTManager::shared().printerList().firstObject().value();
        bed.click("netxtBtn");
        QCOMPARE(bed.shown(), "WTNetworkWithManualAddition");
        QCOMPARE(bed.screen<WTNetworkWithManualAddition>()->printer(), first);
        bed.click("previousBtn");
        QCOMPARE(bed.shown(), "WTStartView");
    }

    void withoutPrinterTheSearchStartsAgain()
    {
        WizardBed bed;
        bed.click("netxtBtn");
        QCOMPARE(bed.shown(), "WTUnconnectView");
        bed.plugIn(ModelIdentity());
        QTest::keyClick(bed.window().windowHandle(), Qt::Key_Escape);
        QCOMPARE(bed.shown(), "WTStartView");
        QVERIFY(bed.findPrinters());
        bed.click("netxtBtn");
        QCOMPARE(bed.shown(), "WTNetworkWithManualAddition");
    }

    void windowComesForward()
    {
        WizardBed bed;
        RaiseCount raises;
        bed.window().installEventFilter(&raises);
        for (const bool byForce : {true, false}) {
            WTApp::usePorts(bed.hostWiFi, bed.desktop, {.activatesCooperatively = !byForce});
            QWidget other;
            other.show();
            QVERIFY(QTest::qWaitForWindowActive(&other));
            raises.count = 0;
            AppDelegate delegate;
            delegate.setWindow(&bed.window());
            delegate.applicationDidFinishLaunching();
            QTRY_VERIFY(bed.window().isActiveWindow());
            QCOMPARE(raises.count, byForce ? 1 : 0);
        }
    }
};

QTEST_MAIN(ScreenMapTests)
#include "ScreenMapTests.moc"
