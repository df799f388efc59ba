#include "AccessPointSecurity.h"
#include "MockNetworkManager.h"
#include "NetworkManagerWiFi.h"
#include "Rows.h"
#include "SystemTime.h"
#include "VirtualTime.h"

#include <QJsonObject>
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

/// What a callback of the port's thread delivers.
template <typename Answer>
Answer waitFor(std::future<Answer> future)
{
    if (future.wait_for(5s) != std::future_status::ready)
        qFatal("the host's Wi-Fi did not answer within 5 s");
    return future.get();
}

WTResult<std::vector<VisibleNetwork>> scanned(NetworkManagerWiFi &wifi)
{
    auto answer = std::make_shared<std::promise<WTResult<std::vector<VisibleNetwork>>>>();
    wifi.scan([answer](const auto &networks) { answer->set_value(networks); });
    return waitFor(answer->get_future());
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
        lines += u"%1/%2/%3%4"_s.arg(network.ssid)
                     .arg(network.security)
                     .arg(network.quality)
                     .arg(network.only5GHz ? u" 5 GHz"_s : QString());
    return lines.join(u", ").toUtf8();
}

} // namespace

class NetworkManagerWiFiTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_mock.tell(QJsonArray{u"stop"_s}); }

    void usesABusThatComesLater()
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

    void state()
    {
        const Operations radioOff{{u"start"_s, false}, {u"device"_s, u"wlan0"_s}};
        const Operations switchedOff{{u"start"_s}, {u"device"_s, u"wlan0"_s}, {u"hardware_switch"_s, false}};
        const auto joined = [](bool primary) {
            return Operations{{u"device"_s, u"wlan1"_s},
                              {u"ap"_s, u"wlan1"_s, u"cafe"_s, hex("Caf\u00e9"), 30, 5180, 0, 0, 0},
                              {u"profile"_s, u"wlan1"_s, u"p2"_s, u"Caf\u00e9"_s},
                              {u"join"_s, u"wlan1"_s, u"p2"_s, u"cafe"_s, primary}};
        };
        eachRow(
            {
                {"NetworkManager absent", Operations{}, QString(), false, QString(), 0, 0, 0LL},
                {"switched off by hand", switchedOff, u"wlan0"_s, false, QString(), 0, 0, 0LL},
                {"joined", joinedComputer(), u"wlan0"_s, true, u"Office"_s, -59, 1, 4LL},
                {"the primary of two", joinedComputer() + joined(true), u"wlan1"_s, true, u"Caf\u00e9"_s, -85, 2, 0LL},
            },
            [&](const Operations &host, const QString &interfaceName, bool poweredOn, const QString &ssid, int rssi,
                int band, qint64 platformSecurity) {
                cleanup();
                m_mock.tell(host);
                NetworkManagerWiFi wifi(m_time);
                const HostWiFiState expected{interfaceName, poweredOn,
                                             band,          ssid.isNull() ? std::nullopt : std::optional(ssid),
                                             rssi,          platformSecurity};
                QTRY_VERIFY(wifi.state() == expected);
                // A secret is answered only when the first look at the host is over: by then nothing more may change.
                secretOf(wifi, u"nowhere"_s);
                QVERIFY(wifi.state() == expected);
            });
    }

    void followsTheHost()
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

    void networks()
    {
        eachRow(
            {
                {"strongest first, then by name",
                 Operations{{u"ap"_s, u"wlan0"_s, u"a"_s, hex("weak"), 10},
                            {u"ap"_s, u"wlan0"_s, u"b"_s, hex("twin B"), 60, 5955},
                            {u"ap"_s, u"wlan0"_s, u"c"_s, hex("twin A"), 60, 5180}},
                 QByteArray("twin A/7/60 5 GHz, twin B/7/60 5 GHz, weak/7/10")},
                {"one per name and security, the best signal",
                 Operations{{u"ap"_s, u"wlan0"_s, u"a"_s, hex("Home"), 20, 5180},
                            {u"ap"_s, u"wlan0"_s, u"b"_s, hex("Home"), 70},
                            {u"ap"_s, u"wlan0"_s, u"d"_s, hex("Home"), 30},
                            {u"ap"_s, u"wlan0"_s, u"c"_s, hex("Home"), 50, 2412, 0, 0, 0}},
                 QByteArray("Home/7/70, Home/1/50")},
                {"hidden ones are left out",
                 Operations{{u"ap"_s, u"wlan0"_s, u"a"_s, QString(), 90},
                            {u"ap"_s, u"wlan0"_s, u"b"_s, hex(QByteArray(8, '\0')), 90},
                            {u"ap"_s, u"wlan0"_s, u"c"_s, hex("seen"), 5}},
                 QByteArray("seen/7/5")},
                {"multi-byte, not UTF-8, a zero byte",
                 Operations{{u"ap"_s, u"wlan0"_s, u"a"_s, hex("咖啡"), 80},
                            {u"ap"_s, u"wlan0"_s, u"b"_s, u"4361666ce9"_s, 70},
                            {u"ap"_s, u"wlan0"_s, u"c"_s, hex("Cafl\0\xe9"_ba), 60}},
                 "咖啡/7/80, Cafl\u00e9/7/70, Cafl\0\u00e9/7/60"_ba},
            },
            [&](const Operations &seen, const QByteArray &expected) {
                for (const QString &scan : {u"newer"_s, u"refused"_s}) {
                    m_mock.tell(Operations{{u"start"_s}, {u"device"_s, u"wlan0"_s, scan}} + seen);
                    NetworkManagerWiFi wifi(m_time);
                    QTRY_COMPARE(wifi.state().interfaceName, u"wlan0"_s);
                    const auto networks = scanned(wifi);
                    QVERIFY2(networks, qPrintable(scan));
                    QCOMPARE(describe(networks.value()), expected);
                    cleanup();
                }
            });
    }

    void scanWithoutNewerAnswerEnds()
    {
        m_mock.tell(
            {{u"start"_s}, {u"device"_s, u"wlan0"_s, u"silent"_s}, {u"ap"_s, u"wlan0"_s, u"a"_s, hex("Old"), 10}});
        VirtualTime time;
        NetworkManagerWiFi wifi(time);
        QTRY_COMPARE(wifi.state().interfaceName, u"wlan0"_s);
        QByteArray seen;
        std::atomic<bool> answered = false;
        const auto start = time.now();
        wifi.scan([&](const auto &networks) {
            seen = networks ? describe(networks.value()) : QByteArray("refused");
            answered = true;
        });
        QVERIFY(time.runUntil([&] { return answered.load(); }, {}));
        QCOMPARE(time.now() - start, TimePort::Duration(10s));
        QCOMPARE(seen, QByteArray("Old/7/10"));
    }

    void secrets()
    {
        const auto stored = [](const QJsonObject &secrets) {
            return Operations{{u"profile"_s, u"wlan0"_s, u"p1"_s, u"Office"_s, secrets}};
        };
        const auto refused = [](const QString &error) {
            return Operations{{u"profile"_s, u"wlan0"_s, u"p1"_s, u"Office"_s, QJsonValue(), error}};
        };
        const QString difficult = u" \u00a5\u20ac\u00a3\u2022\"'\\ "_s;
        const auto another = [](const QString &name) {
            return QJsonArray{u"profile"_s, u"wlan0"_s, name, u"Office"_s, QJsonObject{{u"psk"_s, u"an older one"_s}}};
        };
        eachRow(
            {
                {"stored", stored({{u"psk"_s, difficult}}), 0, difficult},
                {"WEP key in use", stored({{u"wep-key0"_s, u"abcde"_s}}), 0, u"abcde"_s},
                {"the profile in use before others of its network",
                 Operations{another(u"p0"_s)} + joinedComputer().sliced(2) + Operations{another(u"p2"_s)}, 0,
                 u"s3cret"_s},
                {"permission denied", refused(u"org.freedesktop.NetworkManager.Settings.PermissionDenied"_s), -25293,
                 QString()},
                {"prompt cancelled", refused(u"org.freedesktop.NetworkManager.AgentManager.UserCanceled"_s), -128,
                 QString()},
                {"no secrets", refused(u"org.freedesktop.NetworkManager.AgentManager.NoSecrets"_s),
                 int(SecretStatus::NotStored), QString()},
            },
            [&](const Operations &profiles, int status, const QString &password) {
                cleanup();
                m_mock.tell(Operations{{u"start"_s}, {u"device"_s, u"wlan0"_s}} + profiles);
                NetworkManagerWiFi wifi(m_time);
                QTRY_COMPARE(wifi.state().interfaceName, u"wlan0"_s);
                const auto answer = secretOf(wifi, u"Office"_s);
                QCOMPARE(int(answer.first), status);
                QCOMPARE(answer.second, password);
            });
    }

    void permission()
    {
        NetworkManagerWiFi wifi(m_time);
        const auto watched = [&wifi] {
            auto told = std::make_shared<std::atomic<int>>(-1);
            wifi.watchScanPermission([&wifi, told] { *told = int(wifi.scanPermission()); });
            return told;
        };
        const auto told = watched();
        // Without NetworkManager, and where it asks for a password, the scan itself tells.
        QTRY_COMPARE(told->load(), 4);
        m_mock.tell(QJsonArray{u"start"_s, true, u"no"_s});
        QTRY_COMPARE(told->load(), 2);
        m_mock.tell(QJsonArray{u"permission"_s, u"auth"_s});
        QTRY_COMPARE(told->load(), 4);
        m_mock.tell(QJsonArray{u"permission"_s, u"yes"_s});
        QTRY_COMPARE(told->load(), 3);
        // Another watcher is told what is known already.
        const auto second = watched();
        QTRY_COMPARE(second->load(), 3);
    }

    void endsWhileAScanIsUnderWay()
    {
        m_mock.tell(
            {{u"start"_s}, {u"device"_s, u"wlan0"_s, u"older"_s}, {u"ap"_s, u"wlan0"_s, u"a"_s, hex("Old"), 10}});
        auto answered = std::make_shared<std::atomic<bool>>(false);
        {
            NetworkManagerWiFi wifi(m_time);
            QTRY_COMPARE(wifi.state().interfaceName, u"wlan0"_s);
            wifi.scan([answered](const auto &) { *answered = true; });
            secretOf(wifi, u"nowhere"_s); // The request is on its way. The host names an earlier scan only.
            m_mock.tell(QJsonArray{u"radio"_s, false});
            QTRY_VERIFY(!wifi.state().poweredOn);
            QVERIFY(!answered->load());
        }
        QVERIFY(answered->load());
    }

    void security()
    {
        constexpr quint32 psk = 0x100, ieee8021X = 0x200, sae = 0x400, owe = 0x800, suiteB = 0x2000;
        eachRow(
            {
                {"open", 0, 0, 0, 1, 0},
                {"WEP", 1, 0, 0, 2, 1},
                {"WPA-PSK", 1, psk, 0, 3, 2},
                {"WPA2-PSK", 1, 0, psk, 7, 4},
                {"PSK+SAE", 1, 0, psk | sae, 9, 13},
                {"SAE", 1, 0, sae, 11, 11},
                {"802.1X with Suite-B", 1, 0, ieee8021X | suiteB, 10, 10},
                {"OWE", 1, 0, owe, 13, 14},
                {"PSK beats 802.1X", 1, 0, psk | ieee8021X, 7, 4},
                {"ciphers without a known key management", 1, 0, 0x8, 0, largest},
            },
            [&](quint32 flags, quint32 wpa, quint32 rsn, qint64 library, qint64 platform) {
                QCOMPARE(accessPointSecurity(flags, wpa, rsn), (AccessPointSecurity{library, platform}));
            });
    }

private:
    MockNetworkManager m_mock;
    SystemTime m_time;
};

QTEST_GUILESS_MAIN(NetworkManagerWiFiTests)
#include "NetworkManagerWiFiTests.moc"
