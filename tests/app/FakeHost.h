#pragma once

#include "DesktopPort.h"
#include "HostWiFiPort.h"

#include <QStringList>
#include <utility>
#include <vector>

/// The computer's Wi-Fi as the test sets it up. It answers at once, or when the test lets it.
class FakeHostWiFi : public HostWiFiPort
{
public:
    HostWiFiState now;
    SecretStatus secretStatus = SecretStatus::Success;
    QStringList askedSecrets;  ///< The networks whose password was asked for.
    bool holdsSecrets = false; ///< Requests wait for `answerSecrets`.
    WTResult<std::vector<VisibleNetwork>> networks = std::vector<VisibleNetwork>{};
    int scans = 0;           ///< How often the networks were asked for.
    bool holdsScans = false; ///< Requests wait for `answerScans`.
    ScanPermission permission = ScanPermission::Unknown;
    bool tellsPermission = true; ///< A new watcher is notified at once.

    HostWiFiState state() override { return now; }
    void scan(NetworksCallback done) override
    {
        ++scans;
        m_scans.push_back(std::move(done));
        if (!holdsScans)
            answerScans();
    }
    void answerScans()
    {
        for (const NetworksCallback &done : std::exchange(m_scans, {}))
            done(networks);
    }
    void storedPassword(const QString &ssid, SecretCallback done) override
    {
        askedSecrets << ssid;
        m_secrets.emplace_back(ssid, std::move(done));
        if (!holdsSecrets)
            answerSecrets();
    }
    void answerSecrets()
    {
        for (const auto &[ssid, done] : std::exchange(m_secrets, {}))
            done(secretStatus, QStringLiteral("secret of ") + ssid);
    }
    ScanPermission scanPermission() override { return permission; }
    void watchScanPermission(std::function<void()> changed) override
    {
        m_permissionChanged = std::move(changed);
        if (tellsPermission)
            changePermission(permission);
    }
    void changePermission(ScanPermission changed)
    {
        permission = changed;
        if (m_permissionChanged)
            m_permissionChanged();
    }

private:
    std::vector<NetworksCallback> m_scans;
    std::vector<std::pair<QString, SecretCallback>> m_secrets;
    std::function<void()> m_permissionChanged;
};

/// A desktop with nothing to open, whose report is what the test says.
class FakeDesktop : public DesktopPort
{
public:
    QString report;
    DeviceAccess access;
    int reportCount = 0; ///< How often the report was asked for.

    QString addPrinterCommandLine() override { return QStringLiteral(":"); }
    QString privacySettingsCommandLine() override { return QStringLiteral(":"); }
    QString hostReport() override
    {
        ++reportCount;
        return report;
    }
    QString operatingSystemVersion() override { return QStringLiteral("Test System 1"); }
    DeviceAccess deviceAccess() override { return access; }
};
