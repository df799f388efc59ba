#include "FakeHost.h"
#include "LogCollector.h"
#include "WTApp.h"
#include "WTWiFi.h"

#include <QTest>
#include <limits>

using namespace Qt::Literals::StringLiterals;

class HostStateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void ratesSignals_data();
    void ratesSignals();
    void numbersSecurityModes_data();
    void numbersSecurityModes();
    void labelsSecurity_data();
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
}

void HostStateTest::ratesSignals_data()
{
    QTest::addColumn<qint64>("rssi");
    QTest::addColumn<qint64>("quality");

    const auto row = [](qint64 rssi, qint64 quality) { QTest::addRow("%lld", rssi) << rssi << quality; };
    row(std::numeric_limits<qint64>::min(), 0);
    row(-100, 0);
    row(-99, 2);
    row(-75, 50);
    row(-51, 98);
    row(-50, 100);
    row(0, 100);
}

void HostStateTest::ratesSignals()
{
    QFETCH(qint64, rssi);
    QTEST(WTApp::_qualityStringWithRSSI(rssi), "quality");
}

void HostStateTest::numbersSecurityModes_data()
{
    QTest::addColumn<qint64>("mode");
    QTest::addColumn<qint64>("number");

    const auto row = [](qint64 mode, qint64 number) { QTest::addRow("%lld", mode) << mode << number; };
    row(0, 0);
    row(1, 1);
    for (qint64 mode = 2; mode <= 13; ++mode)
        row(mode, mode == 6 ? 1 : 2);
    row(14, 6);
    row(-1, 6);
    row(std::numeric_limits<qint64>::max(), 6);
}

void HostStateTest::numbersSecurityModes()
{
    QFETCH(qint64, mode);
    QTEST(WTApp::intNumberForSecurityMode(quint64(mode)), "number");
}

void HostStateTest::labelsSecurity_data()
{
    QTest::addColumn<qint64>("security");
    QTest::addColumn<std::optional<QString>>("label");

    const auto row = [](qint64 security, const std::optional<QString> &label) {
        QTest::addRow("%lld", security) << security << label;
    };
    row(-1, std::nullopt);
    row(0, u"Other"_s);
    row(3, u"WPA-Personal"_s);
    row(9, u"WPA2/WPA3-Personal"_s);
    row(13, u"OWE"_s);
    row(14, std::nullopt);
}

void HostStateTest::labelsSecurity()
{
    QFETCH(qint64, security);
    WTWiFi wifi;
    wifi.security = security;
    wifi.setAuthModeLabel(u"something else"_s);
    QTEST(wifi.authModeLabel(), "label");
}

void HostStateTest::refreshes_data()
{
    QTest::addColumn<bool>("poweredOn");
    QTest::addColumn<std::optional<QString>>("ssid");
    QTest::addColumn<QStringList>("lines");

    const auto row = [](const char *name, bool poweredOn, const std::optional<QString> &ssid, const char *power,
                        const char *shown, const char *connected) {
        QTest::newRow(name) << poweredOn << ssid
                            << QStringList{u"info: powerOnWifi:"_s + QString::fromUtf8(power),
                                           u"info: selectedSSID:"_s + QString::fromUtf8(shown),
                                           u"info: isMacWiFiConnected:"_s + QString::fromUtf8(connected)};
    };
    row("joined", true, u"Quill House"_s, "✅", "Quill House", "✅");
    row("not joined", true, std::nullopt, "✅", "(null)", "❌");
    row("an empty name", true, u""_s, "✅", "", "❌");
    row("radio off", false, u"Quill House"_s, "❌", "Quill House", "❌");
}

void HostStateTest::refreshes()
{
    QFETCH(bool, poweredOn);
    QFETCH(std::optional<QString>, ssid);
    QFETCH(QStringList, lines);
    m_hostWiFi.now.poweredOn = poweredOn;
    m_hostWiFi.now.ssid = ssid;
    WTApp &app = WTApp::shared();
    app.selectedPassword = u"of an earlier network"_s;

    const LogCollector log;
    app.checkPcNetState();
    QCOMPARE(log.lines(), lines);
    QCOMPARE(app.currentInterface->interfaceName, u"wlan0"_s);
    QCOMPARE(app.powerOnWifi, poweredOn);
    QCOMPARE(app.selectedSSID, ssid);
    QCOMPARE(app.isMacWiFiConnected, lines.last().endsWith(u"✅"_s));
    QCOMPARE(app.channelWifi, 2);
    QCOMPARE(app.selectedRssi, 80);
    QCOMPARE(app.secureWifi, 4);
    QCOMPARE(app.selectedAuthMode, 4);
    QCOMPARE(app.selectedPassword, u"of an earlier network"_s);
}

void HostStateTest::leavesAllAloneWithoutInterface()
{
    WTApp &app = WTApp::shared();
    app.checkPcNetState();
    m_hostWiFi.now = {};

    const LogCollector log;
    WTApp::usePorts(m_hostWiFi, m_desktop, {.hasDefaultInterface = false});
    app.checkPcNetState();
    QCOMPARE(log.lines(), QStringList());
    QVERIFY(app.powerOnWifi);

    WTApp::usePorts(m_hostWiFi, m_desktop, {});
    app.checkPcNetState();
    QVERIFY(!app.currentInterface);
    QVERIFY(!app.powerOnWifi);
    QVERIFY(!app.selectedSSID);
    QCOMPARE(app.selectedRssi, 100);
}

void HostStateTest::fetchesThePassword_data()
{
    QTest::addColumn<qint64>("security");
    QTest::addColumn<SecretStatus>("status");
    QTest::addColumn<QString>("password");
    QTest::addColumn<QStringList>("lines");

    const QString mark = u"info: 🏷"_s;
    QTest::newRow("open") << qint64{0} << SecretStatus::Success << u"before"_s << QStringList{};
    QTest::newRow("stored") << qint64{4} << SecretStatus::Success << u"secret of Quill House"_s << QStringList{mark};
    QTest::newRow("not permitted") << qint64{4} << SecretStatus::PermissionDenied << u""_s
                                   << QStringList{mark, u"info: 鉴权失败，请检查密码"_s};
    QTest::newRow("cancelled") << qint64{4} << SecretStatus::PromptCancelled << u""_s
                               << QStringList{mark, u"info: 用户取消了鉴权"_s};
    QTest::newRow("not stored") << qint64{4} << SecretStatus::NotStored << u""_s
                                << QStringList{mark, u"info: 获取密码失败，错误代码: -25300"_s};
}

void HostStateTest::fetchesThePassword()
{
    QFETCH(qint64, security);
    QFETCH(QString, password);
    QFETCH(QStringList, lines);
    QFETCH(SecretStatus, status);
    m_hostWiFi.now.security = security;
    m_hostWiFi.secretStatus = status;
    WTApp &app = WTApp::shared();
    app.checkPcNetState();
    app.selectedPassword = u"before"_s;

    const LogCollector log;
    app.fetchWIFIPWD();
    QCOMPARE(app.selectedPassword, u"before"_s);
    QTRY_COMPARE(app.selectedPassword, password);
    QCOMPARE(log.lines(), lines);
    QCOMPARE(m_hostWiFi.askedSecrets.isEmpty(), security == 0);
}

void HostStateTest::readsTheSelectedNetworksPassword()
{
    WTApp &app = WTApp::shared();
    app.checkPcNetState();
    QStringList answers;
    const auto keep = [&](const QString &password) { answers << password; };

    app.pwdBySSID(std::nullopt, keep);
    QCOMPARE(answers, QStringList{u""_s});

    app.pwdBySSID(u"Another"_s, keep);
    QCOMPARE(answers.size(), 1);
    app.selectedSSID = u"Chosen since"_s;
    QTRY_COMPARE(answers.size(), 2);
    QCOMPARE(answers.last(), u"secret of Chosen since"_s);
}

void HostStateTest::showsNoPasswordOfAnotherNetwork()
{
    WTApp &app = WTApp::shared();
    app.checkPcNetState();
    app.fetchWIFIPWD();
    QTRY_COMPARE(app.selectedPassword, u"secret of Quill House"_s);
    app.fetchWIFIPWD();
    QCOMPARE(app.selectedPassword, u"secret of Quill House"_s);

    m_hostWiFi.now.ssid = u"Next Door"_s;
    app.checkPcNetState();
    app.fetchWIFIPWD();
    QCOMPARE(app.selectedPassword, std::nullopt);
    QTRY_COMPARE(app.selectedPassword, u"secret of Next Door"_s);
}

QTEST_GUILESS_MAIN(HostStateTest)
#include "HostStateTest.moc"
