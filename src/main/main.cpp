#include "CupsSpooler.h"
#include "InfoList.h"
#include "LibusbPort.h"
#include "LinuxDesktop.h"
#include "Machine.h"
#include "NetworkManagerWiFi.h"
#include "SystemTime.h"
#include "WTApp.h"
#include "detectHostCapabilities.h"
#include "resourceFolder.h"
#include "wt_main.h"

#include <QThread>
#include <cstdio>
#include <string_view>

namespace
{

/// This computer. Never destroyed: a printer command may be under way until the process ends.
class RealMachine
{
public:
    static Machine machine()
    {
        static auto *real = new RealMachine;
        return {real->m_usb, real->m_time, real->m_spooler, real->m_desktop, real->m_hostWiFi, real->m_capabilities};
    }

private:
    const HostCapabilities m_capabilities = detectHostCapabilities();
    SystemTime m_time;
    LibusbPort m_usb{m_time};
    CupsSpooler m_spooler{m_capabilities};
    LinuxDesktop m_desktop;
    NetworkManagerWiFi m_hostWiFi{m_time};
};

void printUsage()
{
    std::puts("usage: wifitool [--help | --version]\n"
              "Puts a printer that is connected by USB onto a wireless network.\n"
              "Logs: $XDG_STATE_HOME/Logs/wifitool, else ~/.local/state/Logs/wifitool");
}

void printVersion()
{
    InfoList::setResourceFolder(resourceFolder());
    std::printf("%s %s\n", qPrintable(WTApp::shared().appBundleName().value_or(QString())),
                qPrintable(WTApp::shared().appFullVersion()));
}

} // namespace

int main(int argc, char **argv)
{
    const std::string_view argument = argc == 2 ? argv[1] : "";
    if (argument == "--help") {
        printUsage();
        return 0;
    }
    if (argument == "--version") {
        printVersion();
        return 0;
    }
    // The toolkit takes the first thread that it meets for the main one, and the machine begins some work on others.
    QThread::currentThread();
    return wt_main(argc, argv, RealMachine::machine());
}
