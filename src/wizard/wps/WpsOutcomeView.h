#pragma once

#include "WTHoverView.h"
#include "WTView.h"

#include <functional>

class DesktopPort;
class TilePair;
class WTButton;

/// Ends the process at once with status 0, after the log has been written out. Does not return outside of tests.
using ProcessEnd = std::function<void()>;
void endProcess();

/// What the two WPS outcome screens share: the user looks at the printer and tells by one of two tiles how it went, and
/// may ask for the add-printer panel.
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
    void openAddPrinterPanel();
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
