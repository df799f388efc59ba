#pragma once

#include "WTHoverView.h"
#include "WTView.h"

#include <functional>

class DesktopPort;
class TilePair;
class WTButton;

/// How a WPS outcome screen ends the process. Does not return, except in tests.
using ProcessEnd = std::function<void()>;
/// Writes out the log and ends the process at once with status 0.
void endProcess();

/// What the two WPS outcome screens share: the user looks at the printer and chooses one of two tiles, success or
/// failure, and may ask for the desktop's add-printer panel.
class WpsOutcomeView : public WTView, public WTHoverViewDelegate
{
    Q_OBJECT

public:
    void awakeFromNib() override;
    void selectDone(WTHoverView *item) override;

    bool isSelectFlag() const { return m_isSelectFlag; }

    virtual void addPrinterNow();
    void backAction();

protected:
    struct Texts {
        QString heading;
        QString instruction;
        QString finishName; ///< Object name of the finish button.
    };

    WpsOutcomeView(WTHoverView *success, WTHoverView *failure, const Texts &texts, DesktopPort &desktop,
                   ProcessEnd processEnd, QWidget *parent);

    bool succeeded() const { return m_success->isSelect(); }
    WTButton *finishButton() const { return m_finish; }
    /// Opens the desktop's panel, if the person asked for it. `afterwards` is called in any case, once.
    void openAddPrinterPanel(std::function<void()> afterwards);
    /// Ends the process if success was reported.
    void endWhenSucceeded();

    WTHoverView *m_success;
    WTHoverView *m_failure;

private:
    TilePair *m_tiles;
    WTButton *m_finish;
    WTButton *m_previous;
    WTButton *m_addPrinter;
    DesktopPort &m_desktop;
    ProcessEnd m_processEnd;
    bool m_isSelectFlag = false;
};
