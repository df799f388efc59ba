#include "NoteView.h"

#include "ButtonSchemes.h"
#include "Localized.h"
#include "ResultPanel.h"
#include "ScreenFrame.h"
#include "WTButton.h"

using namespace Qt::Literals::StringLiterals;

NoteView::NoteView(WizardStep step, const Texts &texts, const QString &logFolder, QWidget *parent)
    : WTView(parent)
    , m_panel(new ResultPanel(texts.pictureName, logFolder))
    , m_previous(new WTButton)
{
    m_previous->setObjectName(u"previous"_s);
    m_previous->setTitle(localized(u"上一步"_s));

    m_panel->setMessage(texts.message);
    m_panel->setAdvice(texts.advice);
    auto *frame = new ScreenFrame(this, step);
    frame->setHeading(texts.heading);
    frame->content()->addWidget(m_panel);
    frame->setBackButton(m_previous);
    frame->setFirstFocus(m_previous);
}

void NoteView::awakeFromNib()
{
    WTView::awakeFromNib();
    ButtonSchemes::applyBack(*m_previous);
}
