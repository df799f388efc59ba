#include "PrinterBed.h"

#include "WTCServer.h"
#include "WTManager.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

bool tellsSecret(const QStringList &lines)
{
    const QString part = networkPassword.sliced(4, 4);
    const QString bytes = QString::fromLatin1(part.toUtf8().toHex());
    return std::ranges::any_of(
        lines, [&](const QString &line) { return line.contains(part) || line.contains(bytes, Qt::CaseInsensitive); });
}

std::shared_ptr<PendingAnswer> start(Operation operation, const QString &uri)
{
    constexpr quint32 location = 0x01100000;
    const auto answer = std::make_shared<PendingAnswer>();
    const auto status = [answer](const ResultAnswer &given) { answer->give(given); };
    switch (operation) {
    case Operation::WakeUp:
        WTManager::wt_wakeUpPrinter(uri, location, [answer](bool success, const std::optional<QString> &message) {
            answer->give(success ? 1 : 0, message.value_or(u"no message"_s));
        });
        break;
    case Operation::Capability:
        WTManager::checkWiFiCapabilityFromPrinter(uri, location, status);
        break;
    case Operation::Configuration:
        WTManager::wifiConfigForPrinter(uri, location, networkName, networkPassword, status);
        break;
    case Operation::Address:
        WTManager::getIPAddressFromPrinter(uri, location, [answer](const AddressAnswer &given) {
            answer->give(static_cast<int>(given.status), given.text);
        });
        break;
    case Operation::InformationPage:
        WTManager::printingWiFiInfoFromPrinter(uri, location, u"QZ100"_s, status);
        break;
    }
    return answer;
}

PrinterScript scriptWith(Operation operation, PrinterFault fault)
{
    PrinterScript script;
    fault.command = static_cast<quint16>(operation);
    script.joinedFromStart = true;
    script.faults.push_back(fault);
    return script;
}

PrinterBed::PrinterBed()
{
    m_resources.writeCatalogue(R"({"printer_info": [{"device_name": "QZ100", "supportWifi": 1},
                                                  {"device_name": "QZ150", "supportWifi": 1, "isOldACL": 1}]})");
    WTManager::usePorts(time);
    WTCServer::usePorts(port, time);
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

Answer PrinterBed::perform(Operation operation)
{
    const auto answer = start(operation, m_uri);
    runUntil([&] { return answer->soFar().calls > 0; });
    return answer->soFar();
}

void PrinterBed::reset(const PrinterScript &script)
{
    bus.release();
    bus.permit();
    bus.setScript(script);
    if (!bus.isPlugged())
        bus.plug();
}
