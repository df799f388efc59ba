#include "FakeHost.h"
#include "HostReport.h"
#include "LogCollector.h"
#include "Rows.h"
#include "WTApp.h"
#include "WTWiFi.h"

#include <limits>

using namespace Qt::Literals::StringLiterals;
using Entries = QMap<QString, QString>;

/// What the program knows of its computer.
class HostStateTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { WTApp::usePorts(m_hostWiFi, m_desktop, {}); }

    void init()
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

    void knowsTheJoinedNetwork()
    {
        const auto isJoined = [](const QString &name, qint64 security, qint64 joinedSecurity) {
            WTWiFi wifi;
            wifi.SSID = name;
            wifi.security = security;
            return wifi.isJoined(name.left(11), joinedSecurity);
        };
        QVERIFY(isJoined(u"Quill House"_s, 9, 4)); // Another access point of the network.
        QVERIFY(!isJoined(u"Quill House"_s, 1, 4));
        QVERIFY(!isJoined(u"Quill House"_s, 13, 4));
        QVERIFY(isJoined(u"Quill House"_s, 1, 0));
        QVERIFY(!isJoined(u"Quill House"_s, 7, 0));
        QVERIFY(!isJoined(u"Quill House 2"_s, 7, 4));
        QVERIFY(!isJoined(u""_s, 7, 4));
    }

    void refreshes()
    {
        const auto lines = [](const char *power, const char *shown, const char *connected) {
            return QStringList{u"info: powerOnWifi:"_s + QString::fromUtf8(power),
                               u"info: selectedSSID:"_s + QString::fromUtf8(shown),
                               u"info: isMacWiFiConnected:"_s + QString::fromUtf8(connected)};
        };
        eachRow(
            {
                {"joined", true, u"Quill House"_s, lines("✅", "Quill House", "✅")},
                {"not joined", true, std::nullopt, lines("✅", "(null)", "❌")},
                {"radio off", false, u"Quill House"_s, lines("❌", "Quill House", "❌")},
            },
            [&](bool poweredOn, const std::optional<QString> &ssid, const QStringList &logged) {
                m_hostWiFi.now.poweredOn = poweredOn;
                m_hostWiFi.now.ssid = ssid;

                const LogCollector log;
                m_app.checkPcNetState();
                QCOMPARE(log.lines(), logged);
                QCOMPARE(m_app.currentInterface->interfaceName, u"wlan0"_s);
                QCOMPARE(m_app.powerOnWifi, poweredOn);
                QCOMPARE(m_app.selectedSSID, ssid);
                QCOMPARE(m_app.isMacWiFiConnected, logged.last().endsWith(u"✅"_s));
                QCOMPARE(m_app.channelWifi, 2);
                QCOMPARE(m_app.selectedRssi, 80);
                QCOMPARE(m_app.secureWifi, 4);
                QCOMPARE(m_app.selectedAuthMode, 4);
            });
    }

    void leavesAllAloneWithoutInterface()
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

    void fetchesThePassword()
    {
        const QString mark = u"info: 🏷"_s;
        eachRow(
            {
                {"open", 0, SecretStatus::Success, std::nullopt, {}},
                {"stored", 4, SecretStatus::Success, u"secret of Quill House"_s, {mark}},
                {"cancelled", 4, SecretStatus::PromptCancelled, u""_s, {mark, u"info: 用户取消了鉴权"_s}},
                {"not stored", 4, SecretStatus::NotStored, u""_s, {mark, u"info: 获取密码失败，错误代码: -25300"_s}},
            },
            [&](qint64 security, const SecretStatus &status, const std::optional<QString> &password,
                const QStringList &lines) {
                m_hostWiFi.now.security = security;
                m_hostWiFi.secretStatus = status;
                m_app.checkPcNetState();
                m_app.selectedPassword.reset();

                const LogCollector log;
                m_app.fetchWIFIPWD();
                QTRY_COMPARE(m_app.selectedPassword, password);
                QCOMPARE(log.lines(), lines);
                QCOMPARE(m_hostWiFi.askedSecrets.isEmpty(), security == 0);
            });
    }

    void readsTheSelectedNetworksPassword()
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

    /// What happens between the fetch of "Quill House"'s password and the moment at which it is looked at. "ask" lets
    /// the question reach the host, which answers at "answer".
    void keepsPasswordsWithTheirNetwork()
    {
        const auto steps = [](const char *list) { return QString::fromLatin1(list).split(u", "_s); };
        eachRow(
            {
                {"joins another", steps("join Next Door"), std::nullopt},
                {"joins another, whose prompt is open", steps("join Next Door, fetch, ask"), std::nullopt},
                {"comes back while another's prompt is open",
                 steps("join Next Door, fetch, ask, join Quill House, answer"), std::nullopt},
                {"the network is open when the prompt is answered",
                 steps("join Next Door, fetch, ask, open Next Door, answer"), std::nullopt},
            },
            [&](const QStringList &done, const std::optional<QString> &password) {
                init();
                m_app.fetchWIFIPWD();
                QTRY_COMPARE(m_app.selectedPassword, u"secret of Quill House"_s);
                m_hostWiFi.holdsSecrets = true;
                for (const QString &step : done) {
                    if (step == u"fetch"_s) {
                        m_app.fetchWIFIPWD();
                    } else if (step == u"answer"_s) {
                        m_hostWiFi.answerSecrets();
                        QCoreApplication::processEvents();
                    } else if (step == u"ask"_s) {
                        QCoreApplication::processEvents();
                    } else {
                        m_hostWiFi.now.ssid = step.sliced(5);
                        m_hostWiFi.now.security = step.startsWith(u"open"_s) ? 0 : 4;
                        m_app.checkPcNetState();
                    }
                }
                QCOMPARE(m_app.selectedPassword, password);
                m_hostWiFi.holdsSecrets = false;
                m_hostWiFi.answerSecrets();
                QCoreApplication::processEvents();
            });
    }

    void parses()
    {
        QCOMPARE(parseHostReport({}), Entries{});
        const QString report =
            u"Hardware:\n  Boot Volume :\t Disk \nTime since boot: 3:21\nnothing\nOwner: \nA: 1\nA: 2"_s;
        QCOMPARE(parseHostReport(report),
                 (Entries{{u"Boot Volume"_s, u"Disk"_s}, {u"Owner"_s, u""_s}, {u"A"_s, u"1"_s}}));
    }

    void asksOnceAndFallsBack()
    {
        m_desktop.report = u"Kernel: 6"_s;
        QCOMPARE(m_app.systemVersion(), u"Test System 1"_s);
        m_desktop.report = u"System Version: Another"_s;
        QCOMPARE(m_app.systemVersion(), u"Test System 1"_s);
        QCOMPARE(m_app.deviceInfo(), (Entries{{u"Kernel"_s, u"6"_s}}));
        QCOMPARE(m_desktop.reportCount, 1);
    }

private:
    FakeHostWiFi m_hostWiFi;
    FakeDesktop m_desktop;
    WTApp &m_app = WTApp::shared();
};

QTEST_GUILESS_MAIN(HostStateTests)
#include "HostStateTests.moc"
