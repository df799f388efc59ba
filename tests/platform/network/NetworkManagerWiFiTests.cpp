#include "AccessPointSecurity.h"
#include "MockNetworkManager.h"
#include "NetworkManagerWiFi.h"
#include "SystemTime.h"
#include "VirtualTime.h"

#include <QJsonObject>
#include <QTest>
#include <future>
#include <limits>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;
using Operations = QList<QJsonArray>;

namespace
{

constexpr qint64 largest = std::numeric_limits<qint64>::max();

QString hex(const QByteArray &bytes)
{
    return QString::fromLatin1(bytes.toHex());
}

/// A computer that is joined to "Office".
Operations joinedComputer()
{
    return {{u"start"_s},
            {u"device"_s, u"wlan0"_s},
            {u"ap"_s, u"wlan0"_s, u"office"_s, hex("Office"), 82, 2437},
            {u"profile"_s, u"wlan0"_s, u"p1"_s, u"Office"_s, QJsonObject{{u"psk"_s, u"s3cret"_s}}},
            {u"join"_s, u"wlan0"_s, u"p1"_s, u"office"_s}};
}

/// What a callback of the port's thread delivers, for at most `seconds`.
template <typename Answer>
Answer waitFor(std::future<Answer> future, int seconds = 5)
{
    if (future.wait_for(std::chrono::seconds(seconds)) != std::future_status::ready)
        qFatal("the host's Wi-Fi did not answer within %d s", seconds);
    return future.get();
}

WTResult<std::vector<VisibleNetwork>> scanned(NetworkManagerWiFi &wifi, int seconds = 5)
{
    auto answer = std::make_shared<std::promise<WTResult<std::vector<VisibleNetwork>>>>();
    wifi.scan([answer](const auto &networks) { answer->set_value(networks); });
    return waitFor(answer->get_future(), seconds);
}

std::pair<SecretStatus, QString> secretOf(NetworkManagerWiFi &wifi, const QString &ssid)
{
    auto answer = std::make_shared<std::promise<std::pair<SecretStatus, QString>>>();
    wifi.storedPassword(ssid, [answer](SecretStatus status, const QString &password) {
        answer->set_value({status, password});
    });
    return waitFor(answer->get_future());
}

QByteArray describe(const std::vector<VisibleNetwork> &networks)
{
    QStringList lines;
    for (const VisibleNetwork &network : networks)
        lines += u"%1/%2/%3"_s.arg(network.ssid).arg(network.security).arg(network.quality);
    return lines.join(u", ").toUtf8();
}

} // namespace

class NetworkManagerWiFiTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_mock.tell(QJsonArray{u"stop"_s}); }

    void usesABusThatComesLater();
    void state_data();
    void state();
    void followsTheHost();
    void networks_data();
    void networks();
    void scanWithoutNewerAnswerEnds();
    void secrets_data();
    void secrets();
    void permission_data();
    void permission();
    void permissionChangesAreTold();
    void endsWhileAScanIsUnderWay();
    void security_data();
    void security();

private:
    MockNetworkManager m_mock;
    SystemTime m_time;
};

void NetworkManagerWiFiTests::usesABusThatComesLater()
{
    m_mock.tell(joinedComputer());
    const QByteArray address = qgetenv("DBUS_SYSTEM_BUS_ADDRESS");
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nowhere/bus");
    VirtualTime time;
    NetworkManagerWiFi wifi(time);
    auto answered = std::make_shared<std::atomic<bool>>(false);
    wifi.watchScanPermission([answered] { *answered = true; });
    QTRY_VERIFY(answered->load());
    QVERIFY(wifi.state().interfaceName.isEmpty());

    qputenv("DBUS_SYSTEM_BUS_ADDRESS", address);
    time.advance(5s);
    QTRY_COMPARE(wifi.state().ssid.value_or(QString()), u"Office"_s);
}

void NetworkManagerWiFiTests::state_data()
{
    QTest::addColumn<Operations>("host");
    QTest::addColumn<QString>("interfaceName");
    QTest::addColumn<bool>("poweredOn");
    QTest::addColumn<QString>("ssid");
    QTest::addColumn<int>("rssi");
    QTest::addColumn<int>("band");
    QTest::addColumn<qint64>("platformSecurity");

    const Operations radioOff{{u"start"_s, false}, {u"device"_s, u"wlan0"_s}};
    const Operations switchedOff{{u"start"_s}, {u"device"_s, u"wlan0"_s}, {u"hardware_switch"_s, false}};
    const auto joined = [](bool primary) {
        return Operations{{u"device"_s, u"wlan1"_s},
                          {u"ap"_s, u"wlan1"_s, u"cafe"_s, hex("Caf\u00e9"), 30, 5180, 0, 0, 0},
                          {u"profile"_s, u"wlan1"_s, u"p2"_s, u"Caf\u00e9"_s},
                          {u"join"_s, u"wlan1"_s, u"p2"_s, u"cafe"_s, primary}};
    };
    const auto unmanaged = [](const QString &device) { return QJsonArray{u"device"_s, device, u"newer"_s, false}; };

    QTest::newRow("NetworkManager absent") << Operations{} << QString() << false << QString() << 0 << 0 << 0LL;
    QTest::newRow("no wireless device") << Operations{{u"start"_s}} << QString() << false << QString() << 0 << 0 << 0LL;
    QTest::newRow("radio off") << radioOff << u"wlan0"_s << false << QString() << 0 << 0 << 0LL;
    QTest::newRow("switched off by hand") << switchedOff << u"wlan0"_s << false << QString() << 0 << 0 << 0LL;
    QTest::newRow("not joined") << Operations{{u"start"_s}, {u"device"_s, u"wlan0"_s}} << u"wlan0"_s << true
                                << QString() << 0 << 0 << 0LL;
    QTest::newRow("joined") << joinedComputer() << u"wlan0"_s << true << u"Office"_s << -59 << 1 << 4LL;
    QTest::newRow("the primary of two") << joinedComputer() + joined(true) << u"wlan1"_s << true << u"Caf\u00e9"_s
                                        << -85 << 2 << 0LL;
    QTest::newRow("the joined one of two") << Operations{{u"start"_s}, {u"device"_s, u"wlan0"_s}} + joined(false)
                                           << u"wlan1"_s << true << u"Caf\u00e9"_s << -85 << 2 << 0LL;
    QTest::newRow("the managed one of two")
        << Operations{{u"start"_s}, unmanaged(u"wlan0"_s), {u"device"_s, u"wlan1"_s}} << u"wlan1"_s << true << QString()
        << 0 << 0 << 0LL;
}

void NetworkManagerWiFiTests::state()
{
    QFETCH(Operations, host);
    QFETCH(QString, interfaceName);
    QFETCH(bool, poweredOn);
    QFETCH(QString, ssid);
    QFETCH(int, rssi);
    QFETCH(int, band);
    QFETCH(qint64, platformSecurity);
    m_mock.tell(host);

    NetworkManagerWiFi wifi(m_time);
    const HostWiFiState expected{
        interfaceName, poweredOn, band, ssid.isNull() ? std::nullopt : std::optional(ssid), rssi, platformSecurity};
    QTRY_VERIFY(wifi.state() == expected);
    // A secret is answered only when the first look at the host is over: by then nothing more may change.
    secretOf(wifi, u"nowhere"_s);
    QVERIFY(wifi.state() == expected);
}

void NetworkManagerWiFiTests::followsTheHost()
{
    NetworkManagerWiFi wifi(m_time);
    QVERIFY(wifi.state().interfaceName.isEmpty());

    m_mock.tell(joinedComputer());
    QTRY_COMPARE(wifi.state().ssid.value_or(QString()), u"Office"_s);
    m_mock.tell(QJsonArray{u"strength"_s, u"office"_s, 40});
    QTRY_COMPARE(wifi.state().rssi, -80);
    m_mock.tell(QJsonArray{u"radio"_s, false});
    QTRY_VERIFY(!wifi.state().poweredOn);

    m_mock.tell(QJsonArray{u"stop"_s});
    QTRY_VERIFY(wifi.state().interfaceName.isEmpty());
    QVERIFY(!scanned(wifi));
    m_mock.tell(joinedComputer());
    QTRY_COMPARE(wifi.state().ssid.value_or(QString()), u"Office"_s);
}

void NetworkManagerWiFiTests::networks_data()
{
    QTest::addColumn<Operations>("seen");
    QTest::addColumn<QByteArray>("expected");

    QTest::newRow("strongest first, then by name") << Operations{{u"ap"_s, u"wlan0"_s, u"a"_s, hex("weak"), 10},
                                                                 {u"ap"_s, u"wlan0"_s, u"b"_s, hex("twin B"), 60},
                                                                 {u"ap"_s, u"wlan0"_s, u"c"_s, hex("twin A"), 60}}
                                                   << QByteArray("twin A/7/60, twin B/7/60, weak/7/10");
    QTest::newRow("one per name and security, the best signal")
        << Operations{{u"ap"_s, u"wlan0"_s, u"a"_s, hex("Home"), 20},
                      {u"ap"_s, u"wlan0"_s, u"b"_s, hex("Home"), 70, 5180},
                      {u"ap"_s, u"wlan0"_s, u"c"_s, hex("Home"), 50, 2412, 0, 0, 0}}
        << QByteArray("Home/7/70, Home/1/50");
    QTest::newRow("hidden ones are left out") << Operations{{u"ap"_s, u"wlan0"_s, u"a"_s, QString(), 90},
                                                            {u"ap"_s, u"wlan0"_s, u"b"_s, hex(QByteArray(8, '\0')), 90},
                                                            {u"ap"_s, u"wlan0"_s, u"c"_s, hex("seen"), 5}}
                                              << QByteArray("seen/7/5");
    QTest::newRow("multi-byte, not UTF-8, a zero byte")
        << Operations{{u"ap"_s, u"wlan0"_s, u"a"_s, hex("咖啡"), 80},
                      {u"ap"_s, u"wlan0"_s, u"b"_s, u"4361666ce9"_s, 70},
                      {u"ap"_s, u"wlan0"_s, u"c"_s, hex("Cafl\0\xe9"_ba), 60}}
        << "咖啡/7/80, Cafl\u00e9/7/70, Cafl\0\u00e9/7/60"_ba;
    QTest::newRow("none") << Operations{} << QByteArray();
}

void NetworkManagerWiFiTests::networks()
{
    QFETCH(Operations, seen);
    QFETCH(QByteArray, expected);
    for (const QString &scan : {u"newer"_s, u"refused"_s}) {
        m_mock.tell(Operations{{u"start"_s}, {u"device"_s, u"wlan0"_s, scan}} + seen);
        NetworkManagerWiFi wifi(m_time);
        QTRY_COMPARE(wifi.state().interfaceName, u"wlan0"_s);
        const auto networks = scanned(wifi);
        QVERIFY2(networks, qPrintable(scan));
        QCOMPARE(describe(networks.value()), expected);
        m_mock.tell(QJsonArray{u"stop"_s});
    }
}

void NetworkManagerWiFiTests::scanWithoutNewerAnswerEnds()
{
    m_mock.tell({{u"start"_s}, {u"device"_s, u"wlan0"_s, u"silent"_s}, {u"ap"_s, u"wlan0"_s, u"a"_s, hex("Old"), 10}});
    NetworkManagerWiFi wifi(m_time);
    QTRY_COMPARE(wifi.state().interfaceName, u"wlan0"_s);
    const auto networks = scanned(wifi, 15);
    QVERIFY(networks);
    QCOMPARE(describe(networks.value()), QByteArray("Old/7/10"));
}

void NetworkManagerWiFiTests::secrets_data()
{
    QTest::addColumn<Operations>("profiles");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("password");

    const auto stored = [](const QJsonObject &secrets) {
        return Operations{{u"profile"_s, u"wlan0"_s, u"p1"_s, u"Office"_s, secrets}};
    };
    const auto refused = [](const QString &error) {
        return Operations{{u"profile"_s, u"wlan0"_s, u"p1"_s, u"Office"_s, QJsonValue(), error}};
    };
    const QString difficult = u" \u00a5\u20ac\u00a3\u2022\"'\\ "_s;
    QTest::newRow("stored") << stored({{u"psk"_s, difficult}}) << 0 << difficult;
    QTest::newRow("WEP key in use") << stored({{u"wep-key0"_s, u"abcde"_s}}) << 0 << u"abcde"_s;
    QTest::newRow("nothing stored") << stored({}) << int(SecretStatus::NotStored) << QString();
    QTest::newRow("another network's profile")
        << Operations{{u"profile"_s, u"wlan0"_s, u"p1"_s, u"Home"_s, QJsonObject{{u"psk"_s, u"x"_s}}}}
        << int(SecretStatus::NotStored) << QString();
    const auto another = [](const QString &name) {
        return QJsonArray{u"profile"_s, u"wlan0"_s, name, u"Office"_s, QJsonObject{{u"psk"_s, u"an older one"_s}}};
    };
    QTest::newRow("the profile in use before others of its network")
        << Operations{another(u"p0"_s)} + joinedComputer().sliced(2) + Operations{another(u"p2"_s)} << 0 << u"s3cret"_s;
    QTest::newRow("permission denied") << refused(u"org.freedesktop.NetworkManager.Settings.PermissionDenied"_s)
                                       << -25293 << QString();
    QTest::newRow("prompt cancelled") << refused(u"org.freedesktop.NetworkManager.AgentManager.UserCanceled"_s) << -128
                                      << QString();
    QTest::newRow("no secrets") << refused(u"org.freedesktop.NetworkManager.AgentManager.NoSecrets"_s)
                                << int(SecretStatus::NotStored) << QString();
    QTest::newRow("service failed") << refused(u"org.freedesktop.NetworkManager.Settings.Failed"_s)
                                    << int(SecretStatus::Unavailable) << QString();
}

void NetworkManagerWiFiTests::secrets()
{
    QFETCH(Operations, profiles);
    QFETCH(int, status);
    QFETCH(QString, password);
    m_mock.tell(Operations{{u"start"_s}, {u"device"_s, u"wlan0"_s}} + profiles);
    NetworkManagerWiFi wifi(m_time);
    QTRY_COMPARE(wifi.state().interfaceName, u"wlan0"_s);
    const auto answer = secretOf(wifi, u"Office"_s);
    QCOMPARE(int(answer.first), status);
    QCOMPARE(answer.second, password);
}

void NetworkManagerWiFiTests::permission_data()
{
    QTest::addColumn<Operations>("host");
    QTest::addColumn<int>("permission");
    QTest::newRow("yes") << Operations{{u"start"_s, true, u"yes"_s}} << 3;
    QTest::newRow("no") << Operations{{u"start"_s, true, u"no"_s}} << 2;
    QTest::newRow("auth: the scan itself prompts") << Operations{{u"start"_s, true, u"auth"_s}} << 4;
    QTest::newRow("NetworkManager absent") << Operations{} << 4;
}

void NetworkManagerWiFiTests::permission()
{
    QFETCH(Operations, host);
    QFETCH(int, permission);
    m_mock.tell(host);
    NetworkManagerWiFi wifi(m_time);
    auto told = std::make_shared<std::atomic<int>>(-1);
    wifi.watchScanPermission([&wifi, told] { *told = int(wifi.scanPermission()); });
    QTRY_COMPARE(told->load(), permission);
}

void NetworkManagerWiFiTests::permissionChangesAreTold()
{
    m_mock.tell(QJsonArray{u"start"_s, true, u"no"_s});
    NetworkManagerWiFi wifi(m_time);
    auto told = std::make_shared<std::atomic<int>>(-1);
    wifi.watchScanPermission([&wifi, told] { *told = int(wifi.scanPermission()); });
    QTRY_COMPARE(told->load(), 2);
    m_mock.tell(QJsonArray{u"permission"_s, u"yes"_s});
    QTRY_COMPARE(told->load(), 3);
    // A second watcher is told what is known already.
    auto second = std::make_shared<std::atomic<int>>(-1);
    wifi.watchScanPermission([&wifi, second] { *second = int(wifi.scanPermission()); });
    QTRY_COMPARE(second->load(), 3);
}

void NetworkManagerWiFiTests::endsWhileAScanIsUnderWay()
{
    m_mock.tell({{u"start"_s}, {u"device"_s, u"wlan0"_s, u"silent"_s}, {u"ap"_s, u"wlan0"_s, u"a"_s, hex("Old"), 10}});
    auto answered = std::make_shared<std::atomic<bool>>(false);
    {
        NetworkManagerWiFi wifi(m_time);
        QTRY_COMPARE(wifi.state().interfaceName, u"wlan0"_s);
        wifi.scan([answered](const auto &) { *answered = true; });
        secretOf(wifi, u"nowhere"_s); // The request is on its way.
        QVERIFY(!answered->load());
    }
    QVERIFY(answered->load());
}

void NetworkManagerWiFiTests::security_data()
{
    QTest::addColumn<quint32>("flags");
    QTest::addColumn<quint32>("wpa");
    QTest::addColumn<quint32>("rsn");
    QTest::addColumn<qint64>("library");
    QTest::addColumn<qint64>("platform");

    constexpr quint32 psk = 0x100, ieee8021X = 0x200, sae = 0x400, owe = 0x800, oweTransition = 0x1000, suiteB = 0x2000;
    const auto row = [](const char *name, quint32 flags, quint32 wpa, quint32 rsn, qint64 library, qint64 platform) {
        QTest::newRow(name) << flags << wpa << rsn << library << platform;
    };
    row("open", 0, 0, 0, 1, 0);
    row("WEP", 1, 0, 0, 2, 1);
    row("WPA-PSK", 1, psk, 0, 3, 2);
    row("WPA+WPA2-PSK", 1, psk, psk, 5, 3);
    row("WPA2-PSK", 1, 0, psk, 7, 4);
    row("PSK+SAE", 1, 0, psk | sae, 9, 13);
    row("SAE", 1, 0, sae, 11, 11);
    row("802.1X WPA", 1, ieee8021X, 0, 4, 7);
    row("802.1X WPA+WPA2", 1, ieee8021X, ieee8021X, 6, 8);
    row("802.1X WPA2", 1, 0, ieee8021X, 8, 9);
    row("802.1X with Suite-B", 1, 0, ieee8021X | suiteB, 10, 10);
    row("Suite-B only", 1, 0, suiteB, 12, 12);
    row("OWE", 1, 0, owe, 13, 14);
    row("OWE transition", 0, 0, oweTransition, 1, 0);
    row("PSK beats 802.1X", 1, 0, psk | ieee8021X, 7, 4);
    row("ciphers without a known key management", 1, 0, 0x8, 0, largest);
}

void NetworkManagerWiFiTests::security()
{
    QFETCH(quint32, flags);
    QFETCH(quint32, wpa);
    QFETCH(quint32, rsn);
    QFETCH(qint64, library);
    QFETCH(qint64, platform);
    QCOMPARE(accessPointSecurity(flags, wpa, rsn), (AccessPointSecurity{library, platform}));
}

QTEST_GUILESS_MAIN(NetworkManagerWiFiTests)
#include "NetworkManagerWiFiTests.moc"
