#include "Rows.h"
#include "WTInstallingView.h"
#include "WizardBed.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace
{

/// One thing that a person does at the keyboard, and the screen that shows then.
struct Stroke {
    const char *widget;         ///< Reached by Tab first; null: the keyboard stays where it is.
    Qt::Key key;                ///< `Key_unknown`: only wait.
    const char *screen;         ///< Null: the program ends.
    const char *text = nullptr; ///< Typed before the key.
    bool waits = false;         ///< Pressing the key starts an action that takes five seconds.
};

/// What has the keyboard, if it is within the screen that shows.
QWidget *focused(WizardBed &bed)
{
    QWidget *widget = QApplication::focusWidget();
    return widget && bed.window().contentView()->isAncestorOf(widget) && widget->isVisible() ? widget : nullptr;
}

/// Whether a person sees that the widget has the keyboard.
bool isMarked(WizardBed &bed, QWidget *widget)
{
    const QImage with = bed.window().grab().toImage();
    widget->clearFocus();
    const QImage without = bed.window().grab().toImage();
    widget->setFocus();
    return with != without;
}

bool tabTo(WizardBed &bed, const char *name)
{
    for (int presses = 0; presses < 20; ++presses) {
        const QWidget *widget = focused(bed);
        if (widget && widget->objectName() == QLatin1StringView(name))
            return true;
        QTest::keyClick(bed.window().windowHandle(), Qt::Key_Tab);
    }
    return false;
}

void press(WizardBed &bed, const Stroke &stroke)
{
    if (stroke.waits) {
        const auto end = bed.time().now() + 5s;
        QTimer::singleShot(0, &bed.window(), [&bed, end] { bed.waitFor([&] { return bed.time().now() >= end; }); });
    }
    // No finger lifts for less time between two strokes; a shorter pause is a held key.
    QTest::qSleep(10);
    QTest::keyClick(bed.window().windowHandle(), stroke.key);
}

} // namespace

/// The wizard for someone who has no mouse.
class KeyboardTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // A blinking text cursor would be visible in some of the pictures only.
        QApplication::setCursorFlashTime(0);
    }

    void walk()
    {
        using Strokes = QList<Stroke>;
        const std::optional<PrinterScript> none;
        const std::optional<PrinterScript> good = PrinterScript{};
        const std::optional<PrinterScript> refusing = PrinterScript{.configurationResult = 0};
        const std::optional<PrinterScript> withoutAddress = PrinterScript{.addressTime = 1h};
        const Strokes wps{{nullptr, Qt::Key_Right, "WTStartView"},
                          {nullptr, Qt::Key_Space, "WTStartView"},
                          {nullptr, Qt::Key_Return, "WTSetWPSMethodView"}};
        const Strokes menu = wps + Strokes{{"selectPrinterMethod", Qt::Key_Return, "WTSetWPSMethodView"}, // chooses
                                           {nullptr, Qt::Key_Return, "WTSelectPBCModelView"}};
        const Strokes run{{nullptr, Qt::Key_Return, "WTNetworkWithManualAddition"},
                          {"passwordTextField", Qt::Key_Return, "WTNetworkWithManualAddition", "secret"}, // no name yet
                          {"ssidTextField", Qt::Key_Return, "WTInstallingView", "Home"},
                          {nullptr, Qt::Key_Escape, "WTInstallingView"}};
        eachRow(
            {
                {"no printer", none, false,
                 Strokes{{nullptr, Qt::Key_Escape, "WTStartView"},
                         {"netxtBtn", Qt::Key_Space, "WTUnconnectView"},
                         {nullptr, Qt::Key_Escape, "WTStartView"},
                         {nullptr, Qt::Key_Return, "WTUnconnectView"},
                         {"previous", Qt::Key_Return, "WTStartView"}}},
                {"router button", none, false,
                 wps + Strokes{{nullptr, Qt::Key_Return, "WTUseWPSSetWifiView"},
                               {nullptr, Qt::Key_Escape, "WTSetWPSMethodView"},
                               {"nextBtn", Qt::Key_Space, "WTUseWPSSetWifiView"},
                               {"previous", Qt::Key_Space, "WTSetWPSMethodView"},
                               {nullptr, Qt::Key_Escape, "WTStartView"},
                               {nullptr, Qt::Key_Return, "WTSetWPSMethodView"},
                               {"selectWPSMethod", Qt::Key_Return, "WTUseWPSSetWifiView"},
                               {"nextButton", Qt::Key_Return, "WTConfigStateInfoView"},
                               {nullptr, Qt::Key_Escape, "WTUseWPSSetWifiView"},
                               {"nextButton", Qt::Key_Return, "WTConfigStateInfoView"},
                               {"lightFailView", Qt::Key_Space, "WTConfigStateInfoView"},
                               {nullptr, Qt::Key_Return, "WTConfigStateInfoView"},
                               {"lightSuccessView", Qt::Key_Space, "WTConfigStateInfoView"},
                               {"addPrinter", Qt::Key_Space, "WTConfigStateInfoView"},
                               {nullptr, Qt::Key_Return, nullptr}}},
                {"menu, PIN", none, false,
                 menu + Strokes{{"selectPIN", Qt::Key_Space, "WTSelectPBCModelView"},
                                {nullptr, Qt::Key_Return, "WTSetPINConfigView"},
                                {nullptr, Qt::Key_Escape, "WTSelectPBCModelView"},
                                {"previous", Qt::Key_Return, "WTSetWPSMethodView"},
                                {"nextBtn", Qt::Key_Return, "WTSelectPBCModelView"},
                                {"nextBtn", Qt::Key_Return, "WTSetPINConfigView"},
                                {"nextBtn", Qt::Key_Return, "WTWpsLinkStateView"},
                                {"previous", Qt::Key_Space, "WTSetPINConfigView"}}},
                {"network list", good, true,
                 Strokes{{nullptr, Qt::Key_Return, "WTWiFiListView", nullptr, true},
                         {nullptr, Qt::Key_Escape, "WTStartView"},
                         {"netxtBtn", Qt::Key_Return, "WTWiFiListView", nullptr, true},
                         {"updateButton", Qt::Key_Return, "WTWiFiListView", nullptr, true},
                         {"wifiListView", Qt::Key_Down, "WTWiFiListView"},
                         {nullptr, Qt::Key_Return, "WTInstallingView"},
                         {nullptr, Qt::Key_unknown, "WTCompleteView"},
                         {"addPrinter", Qt::Key_Space, "WTCompleteView"},
                         {"complateBtn", Qt::Key_Return, nullptr}}},
                {"manual entry", good, false,
                 Strokes{{nullptr, Qt::Key_Return, "WTNetworkWithManualAddition"},
                         {"showPwdBtn", Qt::Key_Space, "WTNetworkWithManualAddition"},
                         {"printWiFiHomePage", Qt::Key_unknown, "WTNetworkWithManualAddition"},
                         {"previousBtn", Qt::Key_Return, "WTStartView"}} +
                     run + Strokes{{nullptr, Qt::Key_unknown, "WTCompleteView"}, {nullptr, Qt::Key_Return, nullptr}}},
                {"refused", refusing, false,
                 run + Strokes{{nullptr, Qt::Key_unknown, "WTConfigFailedView"},
                               {nullptr, Qt::Key_Escape, "WTNetworkWithManualAddition"},
                               {nullptr, Qt::Key_Return, "WTInstallingView"},
                               {nullptr, Qt::Key_unknown, "WTConfigFailedView"},
                               {"previous", Qt::Key_Return, "WTNetworkWithManualAddition"},
                               {nullptr, Qt::Key_Escape, "WTStartView"}}},
                {"no address", withoutAddress, false,
                 run + Strokes{{nullptr, Qt::Key_unknown, "WTFailedView"},
                               {nullptr, Qt::Key_Escape, "WTFailedView"},
                               {"complateBtn", Qt::Key_Return, nullptr}}},
            },
            [&](const std::optional<PrinterScript> &printer, bool wifiOn, const QList<Stroke> &strokes) {
                WizardBed bed(printer ? QList{ModelIdentity()} : QList<ModelIdentity>());
                bed.hostWiFi.permission = ScanPermission::Allowed;
                bed.hostWiFi.now.poweredOn = wifiOn;
                bed.hostWiFi.networks = std::vector{VisibleNetwork{u"Home"_s, 7, 80}, VisibleNetwork{u"Cafe"_s, 1, 60}};
                if (printer)
                    bed.bus().setScript(*printer);
                QVERIFY(bed.findPrinters());

                for (qsizetype index = 0; index < strokes.size(); ++index) {
                    const Stroke &stroke = strokes[index];
                    const QByteArray where = bed.shown() + ", stroke " + QByteArray::number(index) + ' ' +
                                             (stroke.widget ? stroke.widget : "");
                    if (stroke.widget)
                        QVERIFY2(tabTo(bed, stroke.widget), where);
                    // Nothing can be done during a run, and so nothing has the keyboard.
                    if (!qobject_cast<WTInstallingView *>(bed.window().contentView())) {
                        QVERIFY2(focused(bed), where);
                        QVERIFY2(isMarked(bed, focused(bed)), where + focused(bed)->objectName().toLatin1());
                    }
                    if (stroke.text)
                        QTest::keyClicks(focused(bed), QLatin1StringView(stroke.text));
                    if (!stroke.screen) {
                        if (printer) {
                            QTimer::singleShot(0, &bed.window(), [&] { press(bed, stroke); });
                            QCOMPARE(QCoreApplication::exec(), 0);
                        } else {
                            press(bed, stroke);
                            QCOMPARE(bed.processEnds, 1);
                        }
                        break;
                    }
                    if (stroke.key != Qt::Key_unknown)
                        press(bed, stroke);
                    else
                        QVERIFY2(bed.waitFor([&] { return bed.shown() == stroke.screen; }), where);
                    QVERIFY2(bed.shown() == stroke.screen, where + " led to " + bed.shown());
                }
            });
    }

    /// A held key, as desktops tell it: repeats that are called so, or a release and a press of the same instant each
    /// time.
    void heldEnterActsOnce()
    {
        const QByteArray none, tile = "selectWPS", start = "WTStartView", method = "WTSetWPSMethodView";
        const QByteArray afterMethod = "WTUseWPSSetWifiView";
        // In the end the key is pressed once more.
        eachRow(
            {
                {"main action, repeats", true, none, method, afterMethod},
                {"main action, releases", false, none, method, afterMethod},
                {"tile, repeats", true, tile, start, method},
                {"tile, releases", false, tile, start, method},
            },
            [&](bool calledRepeats, const QByteArray &focusedTile, const QByteArray &screen,
                const QByteArray &screenAnew) {
                WizardBed bed;
                if (focusedTile.isEmpty()) {
                    press(bed, {nullptr, Qt::Key_Right, nullptr});
                    press(bed, {nullptr, Qt::Key_Space, nullptr});
                } else {
                    bed.widget(focusedTile)->setFocus();
                }
                const auto send = [&](QEvent::Type type, bool repeats, quint64 time) {
                    QKeyEvent event(type, Qt::Key_Return, Qt::NoModifier, u"\r"_s, repeats);
                    event.setTimestamp(time);
                    QCoreApplication::sendEvent(focused(bed), &event);
                };
                send(QEvent::KeyPress, false, 1000);
                for (const quint64 time : {1500, 1530}) {
                    send(QEvent::KeyRelease, calledRepeats, time);
                    send(QEvent::KeyPress, calledRepeats, time);
                }
                send(QEvent::KeyRelease, false, 1550);
                QCOMPARE(bed.shown(), screen);
                send(QEvent::KeyPress, false, 1700);
                QCOMPARE(bed.shown(), screenAnew);
            });
    }

    void mnemonics()
    {
        for (const char *language : {"de", "en", "es", "fr", "ja", "ko", "zh-Hans", "zh-Hant"})
            checkMnemonics(QString::fromLatin1(language));
    }

private:
    static void checkMnemonics(const QString &language)
    {
        WizardBed bed({ModelIdentity()}, language);
        QVERIFY(bed.findPrinters());
        const auto mnemonicOf = [](const QObject *of) {
            return QKeySequence::mnemonic(of->property("text").toString());
        };

        for (WTView *screen : bed.window().findChildren<WTView *>()) {
            QStringList taken;
            QList<const QObject *> bearers;
            for (const auto *button : screen->findChildren<QPushButton *>())
                bearers << button;
            for (const auto *label : screen->findChildren<QLabel *>()) {
                if (label->buddy())
                    bearers << label;
            }
            for (const QObject *bearer : bearers) {
                const QString key = mnemonicOf(bearer).toString();
                QVERIFY2(!key.isEmpty() && !taken.contains(key), qPrintable(bearer->property("text").toString()));
                taken << key;
            }
        }

        const auto pressMnemonicOf = [&](const QObject *of) {
            QTest::keyClick(bed.window().windowHandle(), mnemonicOf(of)[0].key(), Qt::AltModifier);
        };
        pressMnemonicOf(bed.widget("netxtBtn"));
        QTRY_COMPARE(bed.shown(), "WTNetworkWithManualAddition");
        for (const auto *label : bed.window().contentView()->findChildren<QLabel *>()) {
            if (!label->buddy())
                continue;
            pressMnemonicOf(label);
            QCOMPARE(focused(bed), label->buddy());
        }
        pressMnemonicOf(bed.widget("previousBtn"));
        QTRY_COMPARE(bed.shown(), "WTStartView");
    }
};

QTEST_MAIN(KeyboardTests)
#include "KeyboardTests.moc"
