#include "PrinterBench.h"

#include "WTCServer.h"
#include "WTManager.h"

PrinterBench::PrinterBench()
{
    resources.writeCatalogue(R"({"printer_info": [{"device_name": "QZ100", "supportWifi": 1},
                                                  {"device_name": "QZ150", "supportWifi": 1, "isOldACL": 1}]})");
    WTManager::usePorts(time, m_spooler);
    WTCServer::usePorts(m_usb, time);
    bed.addPrinter();
    bed.plug();
}

bool PrinterBench::discover()
{
    auto &manager = WTManager::shared();
    manager.wt_startDiscoverPrinter();
    const bool found = runUntil([&] { return manager.printerList().count() == 1; });
    manager.wt_stopDiscoverPrinter();
    if (found)
        m_uri = manager.printerList().objectAtIndex(0)->usbObj->URI();
    return found;
}

bool PrinterBench::runUntil(const std::function<bool()> &done)
{
    return time.runUntil(done, [this] { return bed.busy(); });
}

std::shared_ptr<Answer> PrinterBench::perform(Operation operation)
{
    auto answer = start(operation, m_uri);
    runUntil([&] { return answer->calls() > 0; });
    return answer;
}

void PrinterBench::reset(const PrinterScript &script)
{
    bed.release();
    bed.permit();
    bed.setScript(script);
    if (!bed.isPlugged())
        bed.plug();
}
