#include "ButtonSchemes.h"
#include "FieldFrame.h"
#include "KSPasswordField.h"
#include "LiveLabel.h"
#include "Localized.h"
#include "NetworkRows.h"
#include "Palette.h"
#include "ScreenFrame.h"
#include "SlimScrollBar.h"
#include "TextStyle.h"
#include "WTButton.h"
#include "WTDefaultStyleBtn.h"
#include "WTListView.h"
#include "WTTextfield.h"
#include "WTWiFiListView.h"

#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr int listStretch = 5;
constexpr int formStretch = 4;
constexpr int columnGap = 32;

} // namespace

WTWiFiListView::WTWiFiListView(QWidget *parent)
    : WTView(parent)
    , m_rows(new NetworkRows(this))
    , m_wifiListView(new WTListView)
    , m_updateButton(new WTButton)
    , m_activeView(new LiveLabel(localized(u"正在查找无线网络…"_s), TextStyle::Size::Small, Palette::label))
    , m_ssidTextField(new WTTextfield)
    , m_passwordTextField(new KSPasswordField)
    , m_ssidView(new FieldFrame(localized(u"网络名称"_s), m_ssidTextField))
    , m_passwordView(new FieldFrame(localized(u"网络密码"_s), m_passwordTextField))
    , m_showPwdBtn(new WTButton)
    , m_nextBtn(new WTDefaultStyleBtn)
    , m_previous(new WTButton)
{
    layOut();
}

void WTWiFiListView::layOut()
{
    m_wifiListView->setModel(m_rows);
    m_wifiListView->setVerticalScrollBar(new SlimScrollBar);
    m_wifiListView->setObjectName(u"wifiListView"_s);
    m_wifiListView->setAccessibleName(localized(u"附近的无线网络"_s));
    m_updateButton->setObjectName(u"updateButton"_s);
    m_ssidTextField->setObjectName(u"ssidTextField"_s);
    m_passwordTextField->setObjectName(u"passwordTextField"_s);
    m_showPwdBtn->setObjectName(u"btn_showPwd"_s);
    m_nextBtn->setObjectName(u"btn_nextStep"_s);
    m_previous->setObjectName(u"previous"_s);

    m_updateButton->setTitle(localized(u"刷新"_s));
    m_showPwdBtn->setTitle(localized(u"显示密码"_s));
    m_nextBtn->setTitle(localized(u"下一步"_s));
    m_previous->setTitle(localized(u"上一步"_s));
    ButtonSchemes::applyBlue(*m_updateButton);
    ButtonSchemes::applyCheckBox(*m_showPwdBtn);
    ButtonSchemes::applyBack(*m_previous);
    resetFieldFrames();
    m_ssidView->setHelp(localized(u"请从列表中选择，或在此输入名称。"_s));
    m_passwordView->setHelp(localized(u"没有密码的网络请留空。"_s));
    m_activeView->setWordWrap(false);
    m_activeView->hide();

    auto *header = new QHBoxLayout;
    header->addWidget(TextStyle::makeLabel(localized(u"附近的无线网络"_s), TextStyle::Size::Body, Palette::heading), 1);
    header->addWidget(m_activeView);
    auto *list = new QVBoxLayout;
    list->setSpacing(8);
    list->addLayout(header);
    list->addWidget(m_wifiListView, 1);

    auto *form = new QVBoxLayout;
    form->setSpacing(16);
    form->addWidget(m_ssidView);
    form->addWidget(m_passwordView);
    form->addWidget(m_showPwdBtn, 0, Qt::AlignLeft);
    form->addStretch(1);

    auto *columns = new QHBoxLayout;
    columns->setSpacing(columnGap);
    columns->addLayout(list, listStretch);
    columns->addLayout(form, formStretch);

    auto *frame = new ScreenFrame(this, WizardStep::Network);
    frame->setHeading(localized(u"选择无线网络"_s));
    frame->setInstruction(localized(u"请选择打印机要连接的网络，并输入它的密码。"_s));
    frame->content()->addLayout(columns, 1);
    frame->setBackButton(m_previous);
    frame->setMainButton(m_nextBtn);
    frame->addToBar(m_updateButton);
}
