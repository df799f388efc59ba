#pragma once

#include "WTPrinter.h"

#include <QObject>
#include <vector>

/// The supported printers that are plugged in. One at a time; main thread.
class PrinterWatch : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;
    ~PrinterWatch() override;

    /// Begins to look; `changed` follows soon, also where there is none, and then at each change.
    void start();

    /// In the order of the bus; as of the latest `changed`.
    const std::vector<WTPrinterPtr> &printers() const { return m_printers; }

Q_SIGNALS:
    void changed();

private:
    std::vector<WTPrinterPtr> m_printers;
};
