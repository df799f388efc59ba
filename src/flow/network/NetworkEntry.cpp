#include "NetworkEntry.h"

#include "NetworkRules.h"

NetworkEntry::Next NetworkEntry::next(bool printerIsBusy) const
{
    if (printerIsBusy)
        return Next::PrinterBusy;
    if (NetworkRules::isNoName(name))
        return Next::EmptyName;
    if (!NetworkRules::isNameUsable(name))
        return Next::UnusableName;
    const bool refused = !NetworkRules::passwordError(NetworkRules::cutPassword(password)).isEmpty();
    return refused ? Next::UnusablePassword : Next::Go;
}

WTWiFiPtr NetworkEntry::network() const
{
    auto wifi = std::make_shared<WTWiFi>();
    wifi->SSID = name;
    wifi->password = NetworkRules::cutPassword(password);
    return wifi;
}
