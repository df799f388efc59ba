#include "RunMachine.h"

#include "InfoList.h"
#include "WTApp.h"
#include "WTCDevice.h"
#include "WTCServer.h"
#include "WTC_WLAN.h"
#include "WTManager.h"

using namespace Qt::Literals::StringLiterals;

RunMachine::RunMachine(std::size_t mostRuns)
    : spooler(mostRuns)
{
    if (!cups.isReady() || !cups.addQueue(u"Laser_upstairs"_s))
        qFatal("No print spooler.");
    hostWiFi.now = {.interfaceName = u"wlan0"_s, .ssid = u"Home"_s, .security = 4};
    hostWiFi.networks = std::vector<VisibleNetwork>{{u"Home"_s, 7, 80}, {u"Office"_s, 7, 60}};
    hostWiFi.permission = ScanPermission::Allowed;
    InfoList::setResourceFolder(QStringLiteral(WT_RESOURCE_FOLDER));
    WTCServer::usePorts(usb, time);
    WTC_WLAN::usePort(hostWiFi);
    WTManager::usePorts(time);
    WTApp::usePorts(hostWiFi, desktop, {});
    WTApp::shared().setAppLanguage(u"en"_s);
    bus.addPrinter(PrinterModel(identity));
    bus.plug();
    WTManager::shared().discoverPrinter();
}

QString RunMachine::uri()
{
    return deviceFromUsb(usb.devices({identity.vendorID}).front()).URI;
}
