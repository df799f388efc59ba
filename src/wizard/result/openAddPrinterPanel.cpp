#include "openAddPrinterPanel.h"

#include "DesktopPort.h"
#include "WTApp.h"
#include "WTCommand.h"

void openAddPrinterPanel()
{
    WTCommand::executeShellScript(WTApp::shared().desktop().addPrinterCommandLine());
}
