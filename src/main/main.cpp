#include "InfoList.h"
#include "RealMachine.h"
#include "WTApp.h"
#include "resourceFolder.h"
#include "wt_main.h"

#include <cstdio>
#include <string_view>

namespace
{

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
    return wt_main(argc, argv, realMachine());
}
