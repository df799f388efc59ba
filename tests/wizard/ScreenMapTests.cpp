#include "LogCollector.h"
#include "WTCompleteView.h"
#include "WTConfigFailedView.h"
#include "WTHoverView.h"
#include "WTInstallingView.h"
#include "WTManager.h"
#include "WTNetworkWithManualAddition.h"
#include "WTStartView.h"
#include "WTUnconnectView.h"
#include "WizardBed.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace
{

/// A view that counts its appearances.
class CountingView : public WTView
{
    Q_OBJECT

public:
    using WTView::WTView;
    void viewDidApear() override { ++appearances; }

    int appearances = 0;
};

} // namespace

/// Which screen follows which, with the mouse, and what the log says of it.
class ScreenMapTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void forwardAndBack_data();
    void forwardAndBack();
    void doubleClickActsOnce();
    void radioRuleAndItsLogLine_data();
    void radioRuleAndItsLogLine();
    void usbLeadsToTheFirstPrinter();
    void withoutPrinterTheSearchStartsAgain();
    void nothingChosenStaysOnStart();
    void firstScreenHasNoWayBack();
    void configurationFailedLeadsPastTheRun();
    void nestedScreenDoesNotAppear();
    void closeButtonOnlyAsks();
};

void ScreenMapTests::forwardAndBack_data()
{
    QTest::addColumn<QStringList>("clicks");
    QTest::addColumn<QList<QByteArray>>("screens");

    QTest::newRow("no printer") << QStringList{u"netxtBtn"_s} << QList<QByteArray>{"WTUnconnectView"};
    QTest::newRow("router button") << QStringList{u"selectWPS"_s, u"netxtBtn"_s, u"nextBtn"_s, u"nextButton"_s}
                                   << QList<QByteArray>{"", "WTSetWPSMethodView", "WTUseWPSSetWifiView",
                                                        "WTConfigStateInfoView"};
    QTest::newRow("menu, push button")
        << QStringList{u"selectWPS"_s, u"netxtBtn"_s, u"selectPrinterMethod"_s,
                       u"nextBtn"_s,   u"nextBtn"_s,  u"nextBtn"_s}
        << QList<QByteArray>{
               "", "WTSetWPSMethodView", "", "WTSelectPBCModelView", "WTPrinterScreenWPSPBCView", "WTWpsLinkStateView"};
    QTest::newRow("menu, PIN")
        << QStringList{u"selectWPS"_s, u"netxtBtn"_s, u"selectPrinterMethod"_s, u"nextBtn"_s, u"selectPIN"_s,
                       u"nextBtn"_s,   u"nextBtn"_s}
        << QList<QByteArray>{
               "", "WTSetWPSMethodView", "", "WTSelectPBCModelView", "", "WTSetPINConfigView", "WTWpsLinkStateView"};
}

void ScreenMapTests::forwardAndBack()
{
    QFETCH(QStringList, clicks);
    QFETCH(QList<QByteArray>, screens);
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
    while (way.size() > 1) {
        way.removeLast();
        bed.click("previous");
        QCOMPARE(bed.shown(), way.last());
        QCOMPARE(log.lines().filter(u"pre step"_s).last(),
                 u"info: pre step👉🏻"_s + QString::fromLatin1(way.last()));
    }
}

void ScreenMapTests::doubleClickActsOnce()
{
    WizardBed bed;
    bed.click("selectWPS");
    const QWidget *next = bed.widget("netxtBtn");
    const QPoint middle = next->mapTo(&bed.window(), next->rect().center());
    QTest::mouseDClick(bed.window().windowHandle(), Qt::LeftButton, Qt::NoModifier, middle);
    QCOMPARE(bed.shown(), "WTSetWPSMethodView");
}

void ScreenMapTests::radioRuleAndItsLogLine_data()
{
    QTest::addColumn<QStringList>("wayThere");
    QTest::addColumn<QString>("clicked");
    QTest::addColumn<QString>("other");
    QTest::addColumn<QString>("label");

    const QStringList wps{u"selectWPS"_s, u"netxtBtn"_s};
    const QStringList menu = wps + QStringList{u"selectPrinterMethod"_s, u"nextBtn"_s};
    QTest::newRow("USB") << QStringList() << u"selectUSB"_s << u"selectWPS"_s << u"USB"_s;
    QTest::newRow("WPS") << QStringList() << u"selectWPS"_s << u"selectUSB"_s << u"WPS"_s;
    QTest::newRow("button") << wps << u"selectWPSMethod"_s << u"selectPrinterMethod"_s << u"WiFi Btn"_s;
    QTest::newRow("menu") << wps << u"selectPrinterMethod"_s << u"selectWPSMethod"_s << u"Printer Menu"_s;
    QTest::newRow("push button") << menu << u"selectWPS"_s << u"selectPIN"_s << u"PIN"_s;
    QTest::newRow("PIN") << menu << u"selectPIN"_s << u"selectWPS"_s << u"PBC"_s;
}

void ScreenMapTests::radioRuleAndItsLogLine()
{
    QFETCH(QStringList, wayThere);
    QFETCH(QString, clicked);
    QFETCH(QString, other);
    QFETCH(QString, label);
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
}

void ScreenMapTests::usbLeadsToTheFirstPrinter()
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

void ScreenMapTests::withoutPrinterTheSearchStartsAgain()
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

void ScreenMapTests::nothingChosenStaysOnStart()
{
    WizardBed bed;
    qobject_cast<WTHoverView *>(bed.widget("selectUSB"))->setIsSelect(false);
    LogCollector log;
    bed.click("netxtBtn");
    QCOMPARE(bed.shown(), "WTStartView");
    QCOMPARE(log.lines().last(), u"error: _selectUSB.isSelect = NO"_s);
}

void ScreenMapTests::firstScreenHasNoWayBack()
{
    WizardBed bed;
    LogCollector log;
    bed.screen<WTStartView>()->backPreviousView();
    QTest::keyClick(bed.window().windowHandle(), Qt::Key_Escape);
    QCOMPARE(bed.shown(), "WTStartView");
    QCOMPARE(log.lines(), QStringList());
}

void ScreenMapTests::configurationFailedLeadsPastTheRun()
{
    WizardBed bed;
    // The previous screens as they are after a run, without a run.
    auto *entry = bed.screen<WTNetworkWithManualAddition>();
    bed.screen<WTInstallingView>()->setPreView(entry);
    entry->setPreView(bed.screen<WTStartView>());
    auto *failed = bed.screen<WTConfigFailedView>();
    failed->setPreView(bed.screen<WTInstallingView>());
    bed.window().setContentView(failed);
    WTManager::shared().setCloseEnable(WTManager::CloseQuits);

    LogCollector log;
    bed.click("previous");
    QCOMPARE(bed.shown(), "WTNetworkWithManualAddition");
    QCOMPARE(WTManager::shared().closeEnable(), qint64{WTManager::CloseAsks});
    QVERIFY(log.lines().filter(u"👉🏻"_s).isEmpty());
    bed.click("previousBtn");
    QCOMPARE(bed.shown(), "WTStartView");
}

void ScreenMapTests::nestedScreenDoesNotAppear()
{
    WTWindow window;
    auto *outer = new CountingView;
    auto *nested = new CountingView(outer);
    auto *other = new CountingView;
    QVERIFY(!outer->ostraWindow());
    window.setContentView(outer);
    QCOMPARE(outer->ostraWindow(), &window);
    QCOMPARE(nested->ostraWindow(), &window);
    nested->viewDidMoveToWindow();
    outer->pushView(other);
    QVERIFY(!outer->ostraWindow());
    other->backPreviousView();
    QCOMPARE(outer->appearances, 2);
    QCOMPARE(other->appearances, 1);
    QCOMPARE(nested->appearances, 0);
}

void ScreenMapTests::closeButtonOnlyAsks()
{
    WTWindow window;
    window.show();
    int asked = 0;
    connect(&window, &WTWindow::closeRequested, this, [&asked] { ++asked; });
    QVERIFY(!window.close());
    window.setReleasedWhenClosed(true);
    QVERIFY(!window.close());
    QVERIFY(window.isVisible());
    QCOMPARE(asked, 2);
}

QTEST_MAIN(ScreenMapTests)
#include "ScreenMapTests.moc"
