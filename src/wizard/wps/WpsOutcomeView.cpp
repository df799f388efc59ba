#include "WpsOutcomeView.h"

#include "ButtonSchemes.h"
#include "DesktopPanel.h"
#include "Localized.h"
#include "ScreenFrame.h"
#include "TilePair.h"
#include "WTButton.h"
#include "WTLog.h"

#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

void endProcess()
{
    WTLog::flushLog();
    std::_Exit(0);
}

WpsOutcomeView::WpsOutcomeView(WTHoverView *success, WTHoverView *failure, const Texts &texts, DesktopPort &desktop,
                               ProcessEnd processEnd, QWidget *parent)
    : WTView(parent)
    , m_success(success)
    , m_failure(failure)
    , m_tiles(new TilePair(success, failure))
    , m_finish(new WTButton)
    , m_previous(new WTButton)
    , m_addPrinter(new WTButton)
    , m_desktop(desktop)
    , m_processEnd(std::move(processEnd))
{
    m_finish->setObjectName(texts.finishName);
    m_finish->setTitle(localized(u"完成并退出"_s));
    m_previous->setObjectName(u"previous"_s);
    m_previous->setTitle(localized(u"上一步"_s));
    m_addPrinter->setObjectName(u"addPrinter"_s);
    m_addPrinter->setTitle(localized(u"打开系统的添加打印机窗口"_s));
    connect(m_previous, &QAbstractButton::clicked, this, &WpsOutcomeView::backAction);
    connect(m_addPrinter, &QAbstractButton::clicked, this, &WpsOutcomeView::addPrinterNow);

    auto *frame = new ScreenFrame(this, WizardStep::Done);
    frame->setHeading(texts.heading);
    frame->setInstruction(texts.instruction);
    frame->setCenteredContent(m_tiles);
    frame->content()->addWidget(m_addPrinter, 0, Qt::AlignHCenter);
    frame->setBackButton(m_previous);
    frame->setMainButton(m_finish);
}

void WpsOutcomeView::awakeFromNib()
{
    WTView::awakeFromNib();
    ButtonSchemes::applyBack(*m_previous);
    ButtonSchemes::applyRed(*m_finish);
    ButtonSchemes::applyCheckBox(*m_addPrinter);
    m_finish->setEnabled(false);
    m_success->setDelegate(this);
    m_failure->setDelegate(this);
}

void WpsOutcomeView::selectDone(WTHoverView *item)
{
    m_tiles->choose(item, m_failure);
    m_finish->setEnabled(succeeded());
}

void WpsOutcomeView::addPrinterNow()
{
    m_isSelectFlag = !m_isSelectFlag;
    ButtonSchemes::showChecked(*m_addPrinter, m_isSelectFlag);
}

void WpsOutcomeView::openAddPrinterPanel(std::function<void()> afterwards)
{
    if (m_isSelectFlag)
        DesktopPanel::openAddPrinter(window(), m_desktop, std::move(afterwards));
    else
        afterwards();
}

void WpsOutcomeView::endWhenSucceeded()
{
    if (succeeded())
        m_processEnd();
}

void WpsOutcomeView::backAction()
{
    backPreviousView();
}
