#pragma once

#include "StepMarks.h"
#include "WTView.h"

class ResultPanel;
class WTButton;

/// What the two result screens share that lead nowhere but back: what happened, and what one can do about it.
class NoteView : public WTView
{
    Q_OBJECT

public:
    void awakeFromNib() override;

protected:
    struct Texts {
        QString pictureName;
        QString heading;
        QString message;
        QString advice;
    };

    NoteView(WizardStep step, const Texts &texts, const QString &logFolder, QWidget *parent);

    ResultPanel *panel() const { return m_panel; }
    WTButton *previousButton() const { return m_previous; }

private:
    ResultPanel *m_panel;
    WTButton *m_previous;
};
