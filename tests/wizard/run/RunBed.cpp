#include "RunBed.h"

#include "WTManager.h"

RunBed::RunBed(const PrinterScript &script, const ModelIdentity &identity)
    : WizardBed({identity})
    , m_entry(new WTView)
{
    bus().setScript(script);
    WTManager::shared().setCloseEnable(WTManager::CloseAsks);
    window().addScreen(m_entry);
    m_entry->awakeFromNib();
    window().setContentView(m_entry);
}

RunBed::~RunBed()
{
    // Ends all sends.
    if (bus().isPlugged())
        bus().unplug();
}

WTPrinterPtr RunBed::findPrinter()
{
    WTManager &manager = WTManager::shared();
    manager.wt_startDiscoverPrinter();
    findPrinters();
    manager.wt_stopDiscoverPrinter();
    return manager.printerList().firstObject().value_or(nullptr);
}

void RunBed::push(const WTPrinterPtr &printer, const QString &name, const QString &password)
{
    auto wifi = std::make_shared<WTWiFi>();
    wifi->SSID = name;
    wifi->password = password;
    installing().setPrinter(printer);
    installing().setWifi(wifi);
    installing().setProgress(0);
    m_entry->pushView(&installing());
}

WTView *RunBed::screenAtEnd()
{
    return waitFor([this] { return current() != &installing(); }) ? current() : nullptr;
}
