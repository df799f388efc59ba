#pragma once

#include "WTView.h"

class AddressPanel;
class DesktopPort;
class ResultPanel;
class SpoolerPort;
class WTButton;

/// The printer is on the network. Offers to open the desktop's add-printer panel, then ends the application.
class WTCompleteView : public WTView
{
    Q_OBJECT

public:
    WTCompleteView(DesktopPort &desktop, SpoolerPort &spooler, QWidget *parent = nullptr);

    void awakeFromNib() override;

    /// The address that the printer obtained; empty where it is not known. Set before this screen is pushed.
    void setAddress(const QString &address);

    bool isSelectFlag() const { return m_isSelectFlag; }

    void addPrinterNow();
    void over();

private:
    DesktopPort &m_desktop;
    ResultPanel *m_title;
    AddressPanel *m_address;
    WTButton *m_addPrinter;
    WTButton *m_complateBtn;
    bool m_isSelectFlag = false;
};
