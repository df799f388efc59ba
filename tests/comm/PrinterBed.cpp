#include "PrinterBed.h"

#include "WTCServer.h"
#include "WTManager.h"

PrinterBed::PrinterBed()
{
    resources.writeCatalogue(R"({"printer_info": [{"device_name": "QZ100", "supportWifi": 1},
                                                  {"device_name": "QZ150", "supportWifi": 1, "isOldACL": 1}]})");
    WTManager::usePorts(time);
    WTCServer::usePorts(m_usb, time);
    bus.addPrinter();
    bus.plug();
}

bool PrinterBed::discover()
{
    auto &manager = WTManager::shared();
    manager.wt_startDiscoverPrinter();
    const bool found = runUntil([&] { return manager.printerList().count() == 1; });
    manager.wt_stopDiscoverPrinter();
    if (found)
        m_uri = manager.printerList().objectAtIndex(0)->usbObj->URI();
    return found;
}

bool PrinterBed::runUntil(const std::function<bool()> &done)
{
    return time.runUntil(done, [this] { return bus.busy(); });
}

std::shared_ptr<Answer> PrinterBed::perform(Operation operation)
{
    auto answer = start(operation, m_uri);
    runUntil([&] { return answer->calls() > 0; });
    return answer;
}

void PrinterBed::reset(const PrinterScript &script)
{
    bus.release();
    bus.permit();
    bus.setScript(script);
    if (!bus.isPlugged())
        bus.plug();
}
