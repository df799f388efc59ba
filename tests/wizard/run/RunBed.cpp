#include "RunBed.h"

#include "SendWorkers.h"
#include "WTCServer.h"
#include "WTManager.h"
#include "askInBackground.h"

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
    WTManager::usePorts(time);
    WTManager::shared().setCloseEnable(WTManager::CloseAsks);
    m_bus.addPrinter(PrinterModel(identity, script));
    m_bus.plug();

    m_screens = std::make_unique<WizardScreens>(ScreenPorts{time, m_spooler, m_desktop, m_hostWiFi, {}});
    m_entry = new WTView;
    window().addScreen(m_entry);
    m_entry->awakeFromNib();
    window().setContentView(m_entry);
}

RunBed::~RunBed()
{
    // The port must not be destroyed while a send or a question still uses it. Unplugging the printer ends all sends.
    if (m_bus.isPlugged())
        m_bus.unplug();
    m_wait(m_bus, [] { return SendWorkers::shared().isIdle() && isBackgroundIdle(); });
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
    installing().setPrinter(printer);
    installing().setWifi(wifi);
    installing().setProgress(0);
    m_entry->pushView(&installing());
}

WTView *RunBed::screenAtEnd()
{
    return waitFor([this] { return screen() != &installing(); }) ? screen() : nullptr;
}

WTConfigurationRun &RunBed::run()
{
    return *installing().findChild<WTConfigurationRun *>();
}
