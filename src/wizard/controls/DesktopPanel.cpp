#include "DesktopPanel.h"

#include "DesktopPort.h"
#include "Localized.h"
#include "Log.h"
#include "WTCommand.h"
#include "showAlert.h"

using namespace Qt::Literals::StringLiterals;

namespace
{

/// The print spooler's own page, in any browser.
constexpr auto spoolerPage = "http://localhost:631/admin"_L1;

void open(QWidget *window, const QString &commandLine, const QString &absence, std::function<void()> afterwards)
{
    if (!commandLine.isEmpty()) {
        WTCommand::executeShellScript(commandLine);
        afterwards();
        return;
    }
    logWarning("This desktop has no panel for that.");
    const Alert alert{
        .messageText = localized(u"温馨提示："_s), .informativeText = absence, .buttons = {localized(u"确定"_s)}};
    showAlert(window, alert, [afterwards = std::move(afterwards)](int) { afterwards(); });
}

} // namespace

void DesktopPanel::openAddPrinter(QWidget *window, DesktopPort &desktop, std::function<void()> afterwards)
{
    const QString absence =
        formatText(localized(u"此桌面没有添加打印机的窗口。请自行打开系统设置中的“打印机”，或在浏览器中打开 %@。"_s),
                   {QString(spoolerPage)});
    open(window, desktop.addPrinterCommandLine(), absence, std::move(afterwards));
}

void DesktopPanel::openPrivacySettings(QWidget *window, DesktopPort &desktop, std::function<void()> afterwards)
{
    const QString absence = localized(u"无法从这里打开系统设置。请自行打开，并在“隐私”或“Wi-Fi”中允许查找网络。"_s);
    open(window, desktop.privacySettingsCommandLine(), absence, std::move(afterwards));
}
