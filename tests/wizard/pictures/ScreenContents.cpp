#include "ScreenContents.h"

#include "CauseText.h"
#include "Localized.h"
#include "PrinterCommand.h"
#include "PrinterExchange.h"
#include "RunStep.h"
#include "WTApp.h"
#include "WTCUSBPrinter.h"
#include "WTCompleteView.h"
#include "WTConfigFailedView.h"
#include "WTConfigStateInfoView.h"
#include "WTFailedView.h"
#include "WTInstallingView.h"
#include "WTManager.h"
#include "WTNetworkWithManualAddition.h"
#include "WTWiFiListView.h"
#include "WTWpsLinkStateView.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr int someProgress = 40;

WTPrinterPtr firstPrinter()
{
    return WTManager::shared().printerList().firstObject().value();
}

void type(QWidget *screen, QLatin1StringView field, const QString &text)
{
    screen->findChild<QLineEdit *>(field)->setText(text);
}

void listNetworks(WizardBed &bed, WTWiFiListView *list)
{
    bed.hostWiFi.now = {.interfaceName = u"wlan0"_s, .poweredOn = true, .ssid = u"Home network"_s, .security = 4};
    bed.hostWiFi.networks = std::vector<VisibleNetwork>{
        {u"Home network"_s, 7, 82},    {u"Neighbour with quite a long network name"_s, 9, 71},
        {u"咖啡馆 Café"_s, 1, 64},     {u"Office"_s, 10, 45},
        {u"Printers & co."_s, 13, 38}, {u"Old router"_s, 2, 30},
        {u"海の家 바닷가"_s, 5, 24},   {u"Garden"_s, 11, 12}};
    WTApp::shared().checkPcNetState();
    WTApp::shared().fetchWIFIPWD();
    QTest::qWait(0);
    list->setPrinter(firstPrinter());
    list->fetchWIFIList();
    QTest::qWait(0);
}

void startRun(WTInstallingView *run)
{
    auto wifi = std::make_shared<WTWiFi>();
    wifi->SSID = u"Home network"_s;
    wifi->password = u"correct horse"_s;
    run->setPrinter(firstPrinter());
    run->setWifi(wifi);
}

CauseText heldByAProgram()
{
    const UsbCause cause{UsbErrorCode::Busy, u"/dev/bus/usb/001/004"_s, u"ipp-usb"_s, 812, {}};
    const QString message = u"usb://Quillmark/QZ100?serial=QM0001: held by another program (ipp-usb, pid 812)"_s;
    return causeText(RunCause{RunStep::Sending, {wtcErrorDomain, 31, message, cause}}, {});
}

CauseText refusedByThePrinter()
{
    const WTError refusal = PrinterExchange::refusal(PrinterCommand::wifiConfiguration, 2);
    return causeText(RunCause{RunStep::Sending, refusal}, {});
}

QWidget *showFormErrors(WizardBed &bed)
{
    auto *manual = bed.screen<WTNetworkWithManualAddition>();
    bed.window().setContentView(manual);
    type(manual, "ssidTextField"_L1, u"我们家客厅里的无线网络二号"_s);
    type(manual, "passwordTextField"_L1, u"a password that is over the limit"_s);
    return nullptr;
}

QWidget *showSheet(WizardBed &bed, const Alert &alert)
{
    bed.window().presentAlert(alert, {});
    return bed.window().findChild<QWidget *>(u"alert"_s);
}

QWidget *showQuitQuestion(WizardBed &bed)
{
    bed.window().setContentView(bed.screen<WTWiFiListView>());
    return showSheet(bed, {.messageText = localized(u"温馨提示："_s),
                           .informativeText = localized(u"是否退出Wi-Fi配置工具?"_s),
                           .buttons = {localized(u"确定"_s), localized(u"取消"_s)}});
}

QWidget *showBusyNote(WizardBed &bed)
{
    bed.window().setContentView(bed.screen<WTWiFiListView>());
    return showSheet(bed, {.messageText = localized(u"温馨提示："_s),
                           .informativeText = localized(u"打印端口被占用，无法配置打印机"_s),
                           .buttons = {localized(u"确定"_s)}});
}

} // namespace

const std::array<Moment, 3> moments{
    Moment{"FormErrors", showFormErrors},
    Moment{"QuitQuestion", showQuitQuestion},
    Moment{"BusyNote", showBusyNote},
};

void fillScreen(WizardBed &bed, WTView *screen)
{
    if (auto *manual = qobject_cast<WTNetworkWithManualAddition *>(screen))
        manual->setPrinter(firstPrinter());
    else if (auto *run = qobject_cast<WTInstallingView *>(screen))
        startRun(run);
    else if (auto *list = qobject_cast<WTWiFiListView *>(screen))
        list->setPrinter(firstPrinter());
    else if (auto *complete = qobject_cast<WTCompleteView *>(screen))
        complete->setAddress(u"192.168.1.77"_s);
    else if (auto *failed = qobject_cast<WTFailedView *>(screen))
        failed->setCause(heldByAProgram());
    else if (auto *configFailed = qobject_cast<WTConfigFailedView *>(screen))
        configFailed->setCause(refusedByThePrinter());

    bed.window().setContentView(screen);

    if (auto *list = qobject_cast<WTWiFiListView *>(screen)) {
        listNetworks(bed, list);
    } else if (qobject_cast<WTNetworkWithManualAddition *>(screen)) {
        type(screen, "ssidTextField"_L1, u"Home network"_s);
        type(screen, "passwordTextField"_L1, u"correct horse"_s);
    } else if (auto *run = qobject_cast<WTInstallingView *>(screen)) {
        const auto *line = run->findChild<QLabel *>(u"progressLabel"_s);
        bed.waitFor([line] { return line->text() == stepLine(RunStep::Sending, 0); });
        run->setProgress(someProgress);
    } else if (qobject_cast<WTCompleteView *>(screen) || qobject_cast<WTWpsLinkStateView *>(screen)) {
        bed.click("addPrinter");
    }
    if (qobject_cast<WTWpsLinkStateView *>(screen))
        bed.click("wpsSuccessView");
    if (qobject_cast<WTConfigStateInfoView *>(screen))
        bed.click("lightFailView");
}
