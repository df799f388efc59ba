#include "WTPrinter.h"

#include "ModelCatalogue.h"
#include "wtc_extractPrinterType.h"

WTPrinterPtr WTPrinter::initWithPrinterType(const QString &printerType)
{
    auto printer = std::make_shared<WTPrinter>();
    printer->setPrinterType(printerType);
    printer->configPrinter();
    return printer;
}

void WTPrinter::setPrinterType(const QString &name)
{
    m_printerType = wtc_extractPrinterType(name);
}

void WTPrinter::configPrinter()
{
    if (m_printerType.isEmpty()) {
        wifiPrinter = false;
        return;
    }
    // Without a readable catalogue the flags stay as they are. The manager has logged the reason.
    const auto catalogue = ModelCatalogue::readConfigured();
    if (!catalogue)
        return;
    if (const auto model = catalogue.value().modelNamed(m_printerType)) {
        wifiPrinter = model->supportsWiFi;
        wifiCode = model->wifiCode;
        oldAcl = model->oldAcl;
    }
}
