#pragma once

#include "GuideSteps.h"
#include "WTView.h"

class WTButton;
class WTDefaultStyleBtn;

/// What the three screens with WPS instructions share: numbered steps, the way back and the way on. They send nothing
/// to the printer.
class GuidanceView : public WTView
{
    Q_OBJECT

public:
    void awakeFromNib() override;

protected:
    struct Texts {
        QString heading;
        QString instruction;
        QList<GuideStep> steps;
        QString nextName; ///< Object name of the button that leads on.
    };

    GuidanceView(const Texts &texts, QWidget *parent);

    WTDefaultStyleBtn *nextButton() const { return m_next; }
    WTButton *previousButton() const { return m_previous; }

private:
    WTDefaultStyleBtn *m_next;
    WTButton *m_previous;
};
