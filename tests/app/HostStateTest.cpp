#include "FakeHost.h"
#include "LogCollector.h"
#include "Rows.h"
#include "WTApp.h"
#include "WTWiFi.h"

#include <limits>

using namespace Qt::Literals::StringLiterals;

class HostStateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void ratesSignals();
    void numbersSecurityModes();
    void labelsSecurity();
    void refreshes_data();
    void refreshes();
    void leavesAllAloneWithoutInterface();
    void fetchesThePassword_data();
    void fetchesThePassword();
    void readsTheSelectedNetworksPassword();
    void showsNoPasswordOfAnotherNetwork();

private:
    FakeHostWiFi m_hostWiFi;
    FakeDesktop m_desktop;
    WTApp &m_app = WTApp::shared();
};

void HostStateTest::initTestCase()
{
    WTApp::usePorts(m_hostWiFi, m_desktop, {});
}

void HostStateTest::init()
{
    m_hostWiFi.now = {.interfaceName = u"wlan0"_s,
                      .poweredOn = true,
                      .band = 2,
                      .ssid = u"Quill House"_s,
                      .rssi = -60,
                      .security = 4};
    m_hostWiFi.secretStatus = SecretStatus::Success;
    m_hostWiFi.askedSecrets.clear();
    m_app.checkPcNetState();
}

void HostStateTest::ratesSignals()
{
    QCOMPARE(WTApp::_qualityStringWithRSSI(std::numeric_limits<qint64>::min()), 0);
    QCOMPARE(WTApp::_qualityStringWithRSSI(-100), 0);
    QCOMPARE(WTApp::_qualityStringWithRSSI(-99), 2);
    QCOMPARE(WTApp::_qualityStringWithRSSI(-51), 98);
    QCOMPARE(WTApp::_qualityStringWithRSSI(-50), 100);
    QCOMPARE(WTApp::_qualityStringWithRSSI(0), 100);
}

void HostStateTest::numbersSecurityModes()
{
    const QList<qint64> numbers{0, 1, 2, 2, 2, 2, 1, 2, 2, 2, 2, 2, 2, 2, 6};
    for (qsizetype mode = 0; mode < numbers.size(); ++mode)
        QCOMPARE(WTApp::intNumberForSecurityMode(quint64(mode)), numbers.at(mode));
    QCOMPARE(WTApp::intNumberForSecurityMode(~quint64{0}), 6);
}

void HostStateTest::labelsSecurity()
{
    WTWiFi wifi;
    wifi.setAuthModeLabel(u"something else"_s);
    const auto label = [&](qint64 security) {
        wifi.security = security;
        return wifi.authModeLabel();
    };
    QCOMPARE(label(-1), std::nullopt);
    QCOMPARE(label(0), u"Other"_s);
    QCOMPARE(label(9), u"WPA2/WPA3-Personal"_s);
    QCOMPARE(label(13), u"OWE"_s);
    QCOMPARE(label(14), std::nullopt);
}

void HostStateTest::refreshes_data()
{
    const auto lines = [](const char *power, const char *shown, const char *connected) {
        return QStringList{u"info: powerOnWifi:"_s + QString::fromUtf8(power),
                           u"info: selectedSSID:"_s + QString::fromUtf8(shown),
                           u"info: isMacWiFiConnected:"_s + QString::fromUtf8(connected)};
    };
    const Rows<bool, std::optional<QString>, QStringList> row{"poweredOn", "ssid", "lines"};
    row("joined", true, u"Quill House"_s, lines("✅", "Quill House", "✅"));
    row("not joined", true, std::nullopt, lines("✅", "(null)", "❌"));
    row("an empty name", true, u""_s, lines("✅", "", "❌"));
    row("radio off", false, u"Quill House"_s, lines("❌", "Quill House", "❌"));
}

void HostStateTest::refreshes()
{
    QFETCH(bool, poweredOn);
    QFETCH(std::optional<QString>, ssid);
    QFETCH(QStringList, lines);
    m_hostWiFi.now.poweredOn = poweredOn;
    m_hostWiFi.now.ssid = ssid;
    m_app.selectedPassword = u"of an earlier network"_s;

    const LogCollector log;
    m_app.checkPcNetState();
    QCOMPARE(log.lines(), lines);
    QCOMPARE(m_app.currentInterface->interfaceName, u"wlan0"_s);
    QCOMPARE(m_app.powerOnWifi, poweredOn);
    QCOMPARE(m_app.selectedSSID, ssid);
    QCOMPARE(m_app.isMacWiFiConnected, lines.last().endsWith(u"✅"_s));
    QCOMPARE(m_app.channelWifi, 2);
    QCOMPARE(m_app.selectedRssi, 80);
    QCOMPARE(m_app.secureWifi, 4);
    QCOMPARE(m_app.selectedAuthMode, 4);
    QCOMPARE(m_app.selectedPassword, u"of an earlier network"_s);
}

void HostStateTest::leavesAllAloneWithoutInterface()
{
    m_hostWiFi.now = {};

    const LogCollector log;
    WTApp::usePorts(m_hostWiFi, m_desktop, {.hasDefaultInterface = false});
    m_app.checkPcNetState();
    QCOMPARE(log.lines(), QStringList());
    QVERIFY(m_app.powerOnWifi);

    WTApp::usePorts(m_hostWiFi, m_desktop, {});
    m_app.checkPcNetState();
    QVERIFY(!m_app.currentInterface);
    QVERIFY(!m_app.powerOnWifi);
    QVERIFY(!m_app.selectedSSID);
    QCOMPARE(m_app.selectedRssi, 100);
}

void HostStateTest::fetchesThePassword_data()
{
    const QString mark = u"info: 🏷"_s;
    const Rows<qint64, SecretStatus, QString, QStringList> row{"security", "status", "password", "lines"};
    row("open", 0, SecretStatus::Success, u"before"_s, {});
    row("stored", 4, SecretStatus::Success, u"secret of Quill House"_s, {mark});
    row("not permitted", 4, SecretStatus::PermissionDenied, {}, {mark, u"info: 鉴权失败，请检查密码"_s});
    row("cancelled", 4, SecretStatus::PromptCancelled, {}, {mark, u"info: 用户取消了鉴权"_s});
    row("not stored", 4, SecretStatus::NotStored, {}, {mark, u"info: 获取密码失败，错误代码: -25300"_s});
}

void HostStateTest::fetchesThePassword()
{
    QFETCH(qint64, security);
    QFETCH(QString, password);
    QFETCH(QStringList, lines);
    QFETCH(SecretStatus, status);
    m_hostWiFi.now.security = security;
    m_hostWiFi.secretStatus = status;
    m_app.checkPcNetState();
    m_app.selectedPassword = u"before"_s;

    const LogCollector log;
    m_app.fetchWIFIPWD();
    QCOMPARE(m_app.selectedPassword, u"before"_s);
    QTRY_COMPARE(m_app.selectedPassword, password);
    QCOMPARE(log.lines(), lines);
    QCOMPARE(m_hostWiFi.askedSecrets.isEmpty(), security == 0);
}

void HostStateTest::readsTheSelectedNetworksPassword()
{
    QStringList answers;
    const auto keep = [&](const QString &password) { answers << password; };

    m_app.pwdBySSID(std::nullopt, keep);
    QCOMPARE(answers, QStringList{u""_s});

    m_app.pwdBySSID(u"Another"_s, keep);
    QCOMPARE(answers.size(), 1);
    m_app.selectedSSID = u"Chosen since"_s;
    QTRY_COMPARE(answers.size(), 2);
    QCOMPARE(answers.last(), u"secret of Chosen since"_s);
}

void HostStateTest::showsNoPasswordOfAnotherNetwork()
{
    m_app.fetchWIFIPWD();
    QTRY_COMPARE(m_app.selectedPassword, u"secret of Quill House"_s);
    m_app.fetchWIFIPWD();
    QCOMPARE(m_app.selectedPassword, u"secret of Quill House"_s);

    m_hostWiFi.now.ssid = u"Next Door"_s;
    m_app.checkPcNetState();
    m_app.fetchWIFIPWD();
    QCOMPARE(m_app.selectedPassword, std::nullopt);
    QTRY_COMPARE(m_app.selectedPassword, u"secret of Next Door"_s);
}

QTEST_GUILESS_MAIN(HostStateTest)
#include "HostStateTest.moc"
