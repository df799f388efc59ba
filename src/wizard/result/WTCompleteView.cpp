#include "WTCompleteView.h"

#include "AddressPanel.h"
#include "ButtonSchemes.h"
#include "DesktopPanel.h"
#include "Localized.h"
#include "Log.h"
#include "ResultPanel.h"
#include "ScreenFrame.h"
#include "WTApp.h"
#include "WTButton.h"

using namespace Qt::Literals::StringLiterals;

WTCompleteView::WTCompleteView(DesktopPort &desktop, SpoolerPort &spooler, QWidget *parent)
    : WTView(parent)
    , m_desktop(desktop)
    , m_title(new ResultPanel(u"success"_s, {}))
    , m_address(new AddressPanel(spooler))
    , m_addPrinter(new WTButton)
    , m_complateBtn(new WTButton)
{
    m_title->setObjectName(u"title"_s);
    m_addPrinter->setObjectName(u"addPrinter"_s);
    m_addPrinter->setTitle(localized(u"打开系统的添加打印机窗口"_s));
    m_complateBtn->setObjectName(u"complateBtn"_s);
    m_complateBtn->setTitle(localized(u"完成并退出"_s));
    connect(m_addPrinter, &QAbstractButton::clicked, this, &WTCompleteView::addPrinterNow);
    connect(m_complateBtn, &QAbstractButton::clicked, this, &WTCompleteView::over);

    m_title->setAdvice(localized(
        u"现在可以拔掉USB数据线了。要在这台电脑上打印，请把打印机添加到系统：勾选下面的选项，然后点击“完成并退出”。"_s));
    m_title->addBelow(m_addPrinter);
    m_title->addBelow(m_address);
    auto *frame = new ScreenFrame(this, WizardStep::Done);
    frame->setHeading(localized(u"打印机已连上无线网络"_s));
    frame->content()->addWidget(m_title);
    frame->setMainButton(m_complateBtn);
    frame->setFirstFocus(m_complateBtn);
}

void WTCompleteView::awakeFromNib()
{
    WTView::awakeFromNib();
    m_title->setMessage(localized(u"恭喜，您完成了无线网络配置！"_s));
    ButtonSchemes::applyRed(*m_complateBtn);
    ButtonSchemes::applyCheckBox(*m_addPrinter);
}

void WTCompleteView::setAddress(const QString &address)
{
    m_address->setAddress(address);
}

void WTCompleteView::addPrinterNow()
{
    logInfo("🏷");
    m_isSelectFlag = !m_isSelectFlag;
    ButtonSchemes::showChecked(*m_addPrinter, m_isSelectFlag);
}

void WTCompleteView::over()
{
    logInfo("🏷");
    if (m_isSelectFlag)
        DesktopPanel::openAddPrinter(window(), m_desktop, &WTApp::wt_exitApp);
    else
        WTApp::wt_exitApp();
}
