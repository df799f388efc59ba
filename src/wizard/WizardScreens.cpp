#include "WizardScreens.h"

#include "Localized.h"
#include "WTApp.h"
#include "WTCompleteView.h"
#include "WTConfigFailedView.h"
#include "WTConfigStateInfoView.h"
#include "WTFailedView.h"
#include "WTInstallingView.h"
#include "WTManager.h"
#include "WTNetworkWithManualAddition.h"
#include "WTPrinterScreenWPSPBCView.h"
#include "WTSelectPBCModelView.h"
#include "WTSetPINConfigView.h"
#include "WTSetWPSMethodView.h"
#include "WTStartView.h"
#include "WTUnconnectView.h"
#include "WTUseWPSSetWifiView.h"
#include "WTWiFiListView.h"
#include "WTWindow.h"
#include "WTWpsLinkStateView.h"

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace
{

template <typename Screen, typename... Arguments>
Screen *makeScreen(WTWindow &window, Arguments &&...arguments)
{
    auto *screen = new Screen(std::forward<Arguments>(arguments)...);
    window.addScreen(screen);
    return screen;
}

} // namespace

WizardScreens::WizardScreens(const ScreenPorts &ports, const ProcessEnd &processEnd)
    : m_window(std::make_unique<WTWindow>())
    , m_startView(makeScreen<WTStartView>(*m_window, WTManager::shared(), WTApp::shared()))
{
    m_window->setWindowTitle(localized(u"Wi-Fi配置工具"_s));

    auto *unconnect = makeScreen<WTUnconnectView>(*m_window, ports.logFolder);
    const NetworkPorts networkPorts{ports.hostWiFi, ports.time, ports.spooler};
    auto *wifiList = makeScreen<WTWiFiListView>(*m_window, networkPorts, ports.desktop);
    auto *manualAdd = makeScreen<WTNetworkWithManualAddition>(*m_window, ports.spooler, ports.desktop);
    auto *installing = makeScreen<WTInstallingView>(*m_window, ports);
    auto *complete = makeScreen<WTCompleteView>(*m_window, ports.desktop, ports.spooler);
    auto *failed = makeScreen<WTFailedView>(*m_window, ports.logFolder);
    auto *configFailed = makeScreen<WTConfigFailedView>(*m_window, ports.logFolder);
    auto *wpsMethod = makeScreen<WTSetWPSMethodView>(*m_window);
    auto *pbcOrPin = makeScreen<WTSelectPBCModelView>(*m_window);
    auto *routerButton = makeScreen<WTUseWPSSetWifiView>(*m_window);
    auto *menuPbc = makeScreen<WTPrinterScreenWPSPBCView>(*m_window);
    auto *menuPin = makeScreen<WTSetPINConfigView>(*m_window);
    auto *linkState = makeScreen<WTWpsLinkStateView>(*m_window, ports.desktop, processEnd);
    auto *lightState = makeScreen<WTConfigStateInfoView>(*m_window, ports.desktop, processEnd);

    m_window->welcomeView = m_startView;
    m_window->autoInstallView = installing;

    m_startView->setUnconnectView(unconnect);
    m_startView->setWifiListView(wifiList);
    m_startView->setManualAdd(manualAdd);
    m_startView->setWpsLinkView(wpsMethod);

    wifiList->setInstallingView(installing);
    manualAdd->setInstallingView(installing);
    installing->setCompleteView(complete);
    installing->setFailedView(failed);
    installing->setConfigFailedView(configFailed);

    wpsMethod->setSetMethodWPSView(routerButton);
    wpsMethod->setSelectPbcMethodView(pbcOrPin);
    pbcOrPin->setWpsPBCConfigView(menuPbc);
    pbcOrPin->setNextView(menuPin);
    routerButton->setSetWifiWpsResultView(lightState);
    menuPbc->setPrinterSetStateResultView(linkState);
    menuPin->setWpsStateView(linkState);

    for (WTView *screen : m_window->screens())
        screen->awakeFromNib();
}

WizardScreens::~WizardScreens() = default;

void WizardScreens::show()
{
    m_window->setContentView(m_startView);
    m_window->show();
}
