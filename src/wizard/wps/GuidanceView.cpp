#include "GuidanceView.h"

#include "ButtonSchemes.h"
#include "Localized.h"
#include "ScreenFrame.h"
#include "WTButton.h"
#include "WTDefaultStyleBtn.h"

using namespace Qt::Literals::StringLiterals;

GuidanceView::GuidanceView(const Texts &texts, QWidget *parent)
    : WTView(parent)
    , m_next(new WTDefaultStyleBtn)
    , m_previous(new WTButton)
{
    m_next->setObjectName(texts.nextName);
    m_next->setTitle(localized(u"下一步"_s));
    m_previous->setObjectName(u"previous"_s);
    m_previous->setTitle(localized(u"上一步"_s));

    auto *frame = new ScreenFrame(this, WizardStep::SetUp);
    frame->setHeading(texts.heading);
    frame->setInstruction(texts.instruction);
    frame->content()->addWidget(new GuideSteps(texts.steps));
    frame->setBackButton(m_previous);
    frame->setMainButton(m_next);
    frame->setFirstFocus(m_next);
}

void GuidanceView::awakeFromNib()
{
    WTView::awakeFromNib();
    ButtonSchemes::applyBack(*m_previous);
}
