// screen_pictures DIRECTORY LANGUAGE [WIDTH HEIGHT]: saves a picture of every screen, for people to look at.
#include "WTApp.h"
#include "WTConfigFailedView.h"
#include "WTFailedView.h"
#include "WTInstallingView.h"
#include "WTManager.h"
#include "WTNetworkWithManualAddition.h"
#include "WTWiFiListView.h"
#include "WizardBed.h"

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QTest>
#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace
{

/// What a screen needs before it can show itself as in a real run.
void prepare(WizardBed &bed, WTView *screen, const WTPrinterPtr &printer)
{
    if (auto *manual = qobject_cast<WTNetworkWithManualAddition *>(screen)) {
        manual->setPrinter(printer);
        manual->findChild<QLineEdit *>(u"ssidTextField"_s)->setText(u"Home network"_s);
        manual->findChild<QLineEdit *>(u"passwordTextField"_s)->setText(u"correct horse"_s);
    } else if (auto *list = qobject_cast<WTWiFiListView *>(screen)) {
        bed.hostWiFi.now = {.interfaceName = u"wlan0"_s, .poweredOn = true, .ssid = u"Home network"_s, .security = 4};
        bed.hostWiFi.networks = std::vector<VisibleNetwork>{
            {u"Home network"_s, 7, 82}, {u"Neighbour with quite a long network name"_s, 9, 71},
            {u"咖啡馆"_s, 1, 64},       {u"Office"_s, 10, 45},
            {u"Old router"_s, 2, 30},   {u"Garden"_s, 11, 12}};
        WTApp::shared().checkPcNetState();
        WTApp::shared().fetchWIFIPWD();
        QTest::qWait(0);
        list->setPrinter(printer);
        list->fetchWIFIList();
        QTest::qWait(0);
    } else if (auto *run = qobject_cast<WTInstallingView *>(screen)) {
        auto wifi = std::make_shared<WTWiFi>();
        wifi->SSID = u"Home network"_s;
        run->setPrinter(printer);
        run->setWifi(wifi);
        run->setProgress(35);
    } else if (auto *failed = qobject_cast<WTFailedView *>(screen)) {
        failed->setShowWiFiCapabilityError(true);
        failed->setWifiCapabilityError(2);
    }
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 3 && arguments.size() != 5) {
        std::fputs("usage: screen_pictures DIRECTORY LANGUAGE [WIDTH HEIGHT]\n", stderr);
        return 2;
    }
    const QDir directory(arguments[1]);
    directory.mkpath(u"."_s);

    WizardBed bed({ModelIdentity()}, arguments[2]);
    WTManager::shared().setLogPath(u"/home/person/.local/state/Logs/wifitool/wifitool.log"_s);
    if (!bed.findPrinters())
        return 1;
    if (arguments.size() == 5)
        bed.window().resize(arguments[3].toInt(), arguments[4].toInt());
    const WTPrinterPtr printer = WTManager::shared().printerList().firstObject().value();
    for (WTView *screen : bed.window().findChildren<WTView *>()) {
        prepare(bed, screen, printer);
        bed.window().setContentView(screen);
        if (qobject_cast<WTInstallingView *>(screen))
            static_cast<WTInstallingView *>(screen)->setProgress(35);
        QTest::qWait(50);
        const QString file = directory.filePath(QString::fromLatin1(screen->metaObject()->className()) + u".png"_s);
        if (!bed.window().grab().save(file))
            return 1;
    }
    return 0;
}
