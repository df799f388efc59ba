#include "MethodChoiceView.h"

#include "ButtonSchemes.h"
#include "Localized.h"
#include "ScreenFrame.h"
#include "TilePair.h"
#include "WTButton.h"
#include "WTDefaultStyleBtn.h"

using namespace Qt::Literals::StringLiterals;

MethodChoiceView::MethodChoiceView(WTHoverView *first, WTHoverView *second, QWidget *parent)
    : WTView(parent)
    , m_first(first)
    , m_second(second)
    , m_tiles(new TilePair(first, second))
    , m_nextBtn(new WTDefaultStyleBtn)
    , m_previous(new WTButton)
    , m_frame(new ScreenFrame(this, WizardStep::Connect))
{
    m_nextBtn->setObjectName(u"nextBtn"_s);
    m_nextBtn->setTitle(localized(u"下一步"_s));
    m_previous->setObjectName(u"previous"_s);
    m_previous->setTitle(localized(u"上一步"_s));
    m_frame->setCenteredContent(m_tiles);
    m_frame->setBackButton(m_previous);
    m_frame->setMainButton(m_nextBtn);
}

void MethodChoiceView::setTexts(const QString &heading, const QString &instruction)
{
    m_frame->setHeading(heading);
    m_frame->setInstruction(instruction);
}

void MethodChoiceView::awakeFromNib()
{
    WTView::awakeFromNib();
    ff_config();
}

void MethodChoiceView::ff_config()
{
    ButtonSchemes::applyBack(*m_previous);
    m_first->setDelegate(this);
    m_second->setDelegate(this);
    m_first->setIsSelect(true);
}
