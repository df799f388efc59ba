#pragma once

#include "WTView.h"

class DesktopPort;
class ResultPanel;
class WTButton;

/// The printer is on the network. Offers to open the desktop's add-printer panel, then ends the application.
class WTCompleteView : public WTView
{
    Q_OBJECT

public:
    explicit WTCompleteView(DesktopPort &desktop, QWidget *parent = nullptr);

    void awakeFromNib() override;

    bool isSelectFlag() const { return m_isSelectFlag; }

    void addPrinterNow();
    void over();

private:
    DesktopPort &m_desktop;
    ResultPanel *m_title;
    WTButton *m_addPrinter;
    WTButton *m_complateBtn;
    bool m_isSelectFlag = false;
};
