#pragma once

#include "WTHoverView.h"
#include "WTView.h"

class TilePair;
class WTApp;
class WTDefaultStyleBtn;
class WTManager;
class WTNetworkWithManualAddition;
class WTWiFiListView;

/// The first screen: USB cable or Wi-Fi Protected Setup. Printers are looked for while it shows.
class WTStartView : public WTView, public WTHoverViewDelegate
{
    Q_OBJECT

public:
    /// `manager` and `app` live longer than the screen.
    WTStartView(WTManager &manager, WTApp &app, QWidget *parent = nullptr);

    void setWifiListView(WTWiFiListView *view) { m_wifiListView = view; }
    void setManualAdd(WTNetworkWithManualAddition *view) { m_manualAdd = view; }
    void setUnconnectView(WTView *view) { m_unconnectView = view; }
    void setWpsLinkView(WTView *view) { m_wpsLinkView = view; }

    void awakeFromNib() override;
    void viewDidApear() override;
    void selectDone(WTHoverView *item) override;

    void ff_discoverPrinter();
    void next();

private:
    WTManager &m_manager;
    WTApp &m_app;
    WTHoverView *m_selectUSB;
    WTHoverView *m_selectWPS;
    TilePair *m_tiles;
    WTDefaultStyleBtn *m_netxtBtn;
    WTWiFiListView *m_wifiListView = nullptr;
    WTNetworkWithManualAddition *m_manualAdd = nullptr;
    WTView *m_unconnectView = nullptr;
    WTView *m_wpsLinkView = nullptr;
};
