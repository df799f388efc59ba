#include "WTStartView.h"

#include "Localized.h"
#include "Log.h"
#include "ScreenFrame.h"
#include "TilePair.h"
#include "WTApp.h"
#include "WTDefaultStyleBtn.h"
#include "WTManager.h"
#include "WTNetworkWithManualAddition.h"
#include "WTWiFiListView.h"

using namespace Qt::Literals::StringLiterals;

WTStartView::WTStartView(WTManager &manager, WTApp &app, QWidget *parent)
    : WTView(parent)
    , m_manager(manager)
    , m_app(app)
    , m_selectUSB(new WTHoverView(u"usb"_s, localized(u"USB数据线"_s),
                                  localized(u"用数据线连接打印机和电脑。适合第一次使用。"_s)))
    , m_selectWPS(new WTHoverView(u"wps"_s, localized(u"WPS一键配网"_s),
                                  localized(u"路由器有WPS按钮时可用，不需要数据线和密码。"_s)))
    , m_tiles(new TilePair(m_selectUSB, m_selectWPS))
    , m_netxtBtn(new WTDefaultStyleBtn)
{
    m_selectUSB->setObjectName(u"selectUSB"_s);
    m_selectWPS->setObjectName(u"selectWPS"_s);
    m_netxtBtn->setObjectName(u"netxtBtn"_s);
    m_netxtBtn->setTitle(localized(u"下一步"_s));
    connect(m_netxtBtn, &QAbstractButton::clicked, this, &WTStartView::next);

    auto *frame = new ScreenFrame(this, WizardStep::Connect);
    frame->setHeading(localized(u"让打印机连上无线网络"_s));
    frame->setInstruction(localized(u"请打开打印机电源，然后选择配置方式。"_s));
    frame->setCenteredContent(m_tiles);
    frame->setMainButton(m_netxtBtn);
}

void WTStartView::awakeFromNib()
{
    WTView::awakeFromNib();
    m_selectUSB->setDelegate(this);
    m_selectWPS->setDelegate(this);
    m_selectUSB->setIsSelect(true);
    m_selectWPS->setIsSelect(false);
}

void WTStartView::viewDidApear()
{
    WTView::viewDidApear();
    ff_discoverPrinter();
}

void WTStartView::ff_discoverPrinter()
{
    m_manager.wt_startDiscoverPrinter();
}

void WTStartView::selectDone(WTHoverView *item)
{
    m_tiles->choose(item, m_selectUSB);
    logInfo("Selected %@", item == m_selectUSB ? "USB" : "WPS");
}

void WTStartView::next()
{
    logInfo("next step");
    m_manager.wt_stopDiscoverPrinter();
    if (m_selectWPS->isSelect()) {
        pushView(m_wpsLinkView);
        return;
    }
    if (!m_selectUSB->isSelect()) {
        logError("_selectUSB.isSelect = NO");
        return;
    }
    const std::optional<WTPrinterPtr> printer = m_manager.printerList().firstObject();
    if (!printer) {
        pushView(m_unconnectView);
        return;
    }
    m_app.checkPcNetState();
    if (m_app.powerOnWifi) {
        m_wifiListView->setPrinter(*printer);
        pushView(m_wifiListView);
        m_wifiListView->ff_discoverPrinterAndUpdataWIFIList();
    } else {
        m_manualAdd->setPrinter(*printer);
        pushView(m_manualAdd);
    }
}
