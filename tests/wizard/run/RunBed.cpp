#include "RunBed.h"

#include "SendWorkers.h"
#include "WTCServer.h"
#include "WTManager.h"

RunBed::RunBed(VirtualTime &time, const PrinterScript &script)
    : RunBed(
          time,
          [&time](const UsbfsBed &bus, const std::function<bool()> &done) {
              return time.runUntil(done, [&bus] { return bus.busy(); });
          },
          script)
{
}

RunBed::RunBed(TimePort &time, Wait wait, const PrinterScript &script, const ModelIdentity &identity)
    : m_wait(std::move(wait))
    , m_bus(time)
    , m_usb(time)
{
    WTCServer::usePorts(m_usb, time);
    WTManager::usePorts(time, m_spooler);
    WTManager::shared().setCloseEnable(WTManager::CloseAsks);
    m_bus.addPrinter(PrinterModel(identity, script));
    m_bus.plug();

    m_entry = new WTView;
    m_installing = new WTInstallingView;
    m_complete = new WTCompleteView;
    m_failed = new WTFailedView;
    m_configFailed = new WTConfigFailedView;
    m_installing->setCompleteView(m_complete);
    m_installing->setFailedView(m_failed);
    m_installing->setConfigFailedView(m_configFailed);
    for (WTView *view : std::initializer_list<WTView *>{m_entry, m_installing, m_complete, m_failed, m_configFailed}) {
        m_window.addScreen(view);
        view->awakeFromNib();
    }
    m_window.setContentView(m_entry);
}

RunBed::~RunBed()
{
    // The port may only go when no send uses it any more; without a printer they all end.
    if (m_bus.isPlugged())
        m_bus.unplug();
    m_wait(m_bus, [] { return SendWorkers::shared().isIdle(); });
}

bool RunBed::waitFor(const std::function<bool()> &done)
{
    return m_wait(m_bus, done);
}

WTPrinterPtr RunBed::findPrinter()
{
    WTManager &manager = WTManager::shared();
    manager.wt_startDiscoverPrinter();
    waitFor([&] { return manager.printerList().count() > 0; });
    manager.wt_stopDiscoverPrinter();
    return manager.printerList().firstObject().value_or(nullptr);
}

void RunBed::push(const WTPrinterPtr &printer, const QString &name, const QString &password)
{
    auto wifi = std::make_shared<WTWiFi>();
    wifi->SSID = name;
    wifi->password = password;
    m_installing->setPrinter(printer);
    m_installing->setWifi(wifi);
    m_installing->setProgress(0);
    m_entry->pushView(m_installing);
}

WTView *RunBed::screenAtEnd()
{
    return waitFor([this] { return screen() != m_installing; }) ? screen() : nullptr;
}

WTConfigurationRun &RunBed::run()
{
    return *m_installing->findChild<WTConfigurationRun *>();
}
