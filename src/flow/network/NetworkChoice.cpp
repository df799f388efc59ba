#include "NetworkChoice.h"

#include "Log.h"

#include <algorithm>

void NetworkChoice::chooseRow(int row)
{
    m_editedSSID = false;
    m_row = row;
    m_touched = true;
}

void NetworkChoice::nameTyped()
{
    m_editedSSID = true;
    m_touched = true;
}

void NetworkChoice::passwordTyped()
{
    m_passwordTyped = true;
    m_touched = true;
}

void NetworkChoice::beginSearch()
{
    m_row = 0;
    m_editedSSID = false;
    m_touched = false;
}

void NetworkChoice::reset()
{
    beginSearch();
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
    } else if (static_cast<std::size_t>(m_row) < networks.size()) {
        *m_selectedWiFi = *networks[static_cast<std::size_t>(m_row)];
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
    logInfo("wifi ssid:%@", choice->shownSSID());
    m_passwordTyped = false;
    return NetworkEntry{choice->SSID.value_or(QString()),
                        m_row == 0 ? choice->password.value_or(QString()) : QString()};
}

void NetworkChoice::followNetwork(const Networks &before, const Networks &after)
{
    const bool chosen = m_row != 0 || m_touched;
    if (!chosen || static_cast<std::size_t>(m_row) >= before.size())
        return;
    const WTWiFi &network = *before[static_cast<std::size_t>(m_row)];
    const auto place = std::find_if(after.begin(), after.end(), [&network](const WTWiFiPtr &listed) {
        return listed->SSID == network.SSID && listed->security == network.security;
    });
    if (place == after.end()) {
        m_row = 0;
        m_editedSSID = true;
        return;
    }
    m_row = static_cast<int>(place - after.begin());
}
