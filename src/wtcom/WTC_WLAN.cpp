#include "WTC_WLAN.h"

#include "HostWiFiPort.h"

#include <utility>

namespace
{

HostWiFiPort *host = nullptr;

WTC_WLAN recordOf(const VisibleNetwork &network)
{
    WTC_WLAN record;
    record.SSID = network.ssid;
    record.security = network.security;
    record.quality = network.quality;
    record.only5GHz = network.only5GHz;
    return record;
}

} // namespace

void WTC_WLAN::usePort(HostWiFiPort &hostWiFi)
{
    host = &hostWiFi;
}

void WTC_WLAN::getWiFiList(ListCallback callBack)
{
    Q_ASSERT(host);
    host->scan([callBack = std::move(callBack)](const WTResult<std::vector<VisibleNetwork>> &networks) {
        if (!networks) {
            callBack({}, networks.error());
            return;
        }
        std::vector<WTC_WLAN> records;
        records.reserve(networks.value().size());
        for (const VisibleNetwork &network : networks.value())
            records.push_back(recordOf(network));
        callBack(records, std::nullopt);
    });
}
