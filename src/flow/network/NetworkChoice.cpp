#include "NetworkChoice.h"

#include "Log.h"

#include <algorithm>

void NetworkChoice::chooseRow(int row)
{
    m_editedSSID = false;
    m_row = row;
}

void NetworkChoice::reset()
{
    m_row = 0;
    m_selectedWiFi.reset();
}

WTWiFiPtr NetworkChoice::selectedWiFi(const Networks &networks, const NetworkEntry &fields)
{
    if (!m_selectedWiFi)
        m_selectedWiFi = std::make_shared<WTWiFi>();
    if (networks.empty() || m_editedSSID) {
        m_selectedWiFi->SSID = fields.name;
        m_selectedWiFi->password = fields.password;
        m_selectedWiFi->security = 0;
    } else if (std::size_t(m_row) < networks.size()) {
        *m_selectedWiFi = *networks[std::size_t(m_row)];
    }
    return m_selectedWiFi;
}

std::optional<NetworkEntry> NetworkChoice::filledFields(const Networks &networks, const NetworkEntry &fields)
{
    logInfo("select row👉🏻%ld", m_row);
    if (networks.empty()) {
        logWarning("no available WIFI");
        return std::nullopt;
    }
    const WTWiFiPtr choice = selectedWiFi(networks, fields);
    logInfo("wifi ssid:%@", choice->SSID);
    m_passwordTyped = false;
    return NetworkEntry{choice->SSID.value_or(QString()),
                        m_row == 0 ? choice->password.value_or(QString()) : QString()};
}

void NetworkChoice::followNetwork(const Networks &before, const Networks &after)
{
    if (m_row == 0 || std::size_t(m_row) >= before.size())
        return;
    m_row = int(std::find(after.begin(), after.end(), before[std::size_t(m_row)]) - after.begin());
}
