#include "beginProgram.h"

#include "Banner.h"
#include "InfoList.h"
#include "Log.h"
#include "Machine.h"
#include "WTApp.h"
#include "WTCServer.h"
#include "WTC_WLAN.h"
#include "WTManager.h"
#include "resourceFolder.h"
#include "startLogging.h"

using namespace Qt::Literals::StringLiterals;

namespace
{

void usePorts(const Machine &machine)
{
    WTCServer::usePorts(machine.usb, machine.time);
    WTC_WLAN::usePort(machine.hostWiFi);
    WTManager::usePorts(machine.time);
    WTApp::usePorts(machine.hostWiFi, machine.desktop, machine.capabilities);
}

} // namespace

QString beginProgram(const Machine &machine)
{
    InfoList::setResourceFolder(resourceFolder());
    usePorts(machine);
    QString logFolder = startLogging(machine.capabilities);
    for (const char *line : startBanner)
        logInfo("%@", line);
    WTApp::wt_systemLog();
    WTManager::shared().setLogPath(logFolder + u"/WTCore-WiFiTool.log"_s);
    WTApp::shared().appLanguage();
    return logFolder;
}
