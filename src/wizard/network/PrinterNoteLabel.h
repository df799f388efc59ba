#pragma once

#include "LiveLabel.h"
#include "WTError.h"
#include "WTPrinter.h"

class DesktopPort;

/// Names the printer that will be told the network, and says at once what stands in its way.
class PrinterNoteLabel : public LiveLabel
{
    Q_OBJECT

public:
    explicit PrinterNoteLabel(DesktopPort &desktop, QWidget *parent = nullptr);

    /// Shows the printer, and looks in the background for an obstacle.
    void setPrinter(const WTPrinterPtr &printer);

private:
    void tell(const std::optional<WTError> &obstacle);

    DesktopPort &m_desktop;
    WTPrinterPtr m_printer;
};
