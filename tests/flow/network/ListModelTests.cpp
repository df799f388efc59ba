#include "FakeHost.h"
#include "FakeSpooler.h"
#include "NetworkRows.h"
#include "PrinterNote.h"
#include "ResourceFolder.h"
#include "Rows.h"
#include "VirtualTime.h"
#include "WTApp.h"
#include "WTNetworkWithManualAdditionModel.h"
#include "WTWiFiListViewModel.h"

#include <QTemporaryFile>
#include <sys/file.h>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr qint64 wpa2OfThePlatform = 4;

WTC_WLAN network(const QString &name, qint64 security = 7)
{
    WTC_WLAN item;
    item.SSID = name;
    item.security = security;
    return item;
}

} // namespace

/// What the list screen decides: order, choice, and what follows from the host's answers.
class ListModelTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        WTC_WLAN::usePort(m_host);
        WTApp::usePorts(m_host, m_desktop, {});
    }

    void order()
    {
        eachRow(
            {
                {"joined network first", u"Office"_s, u"Office* Home Cafe Home"_s},
                {"an open one of its name behind it", u"Home"_s, u"Home* Home Cafe Office"_s},
                {"not joined", {}, u"Home Cafe Office Home"_s},
            },
            [&](const QString &joined, const QString &names) {
                const auto model = makeModel(joined, u"secret"_s);
                model->reloadDataSource(
                    {network(u"Home"_s, 1), network(u"Cafe"_s), network(u"Office"_s), network(u"Home"_s)}, [] {});
                QStringList listedNames;
                for (const WTWiFiPtr &listed : model->list_WIFI())
                    listedNames += *listed->SSID + (listed->password == u"secret"_s ? u"*"_s : QString());
                QCOMPARE(listedNames.join(u' '), names);
            });
    }

    void chosenRowStaysWithItsNetwork()
    {
        using Networks = std::vector<WTC_WLAN>;
        const WTC_WLAN home = network(u"Home"_s), cafe = network(u"Cafe"_s, 1), office = network(u"Office"_s, 5);
        eachRow(
            {
                {"moves up", 2, {office, home}, 0, false},
                {"moves down from the first row", 0, {cafe, office, home}, 2, false},
                {"an open one took its name", 2, {home, network(u"Office"_s, 1)}, 0, true},
            },
            [&](int chosen, const Networks &found, int row, bool typed) {
                const auto model = makeModel({});
                model->choice().chooseRow(2);
                model->choice().nameTyped();
                model->beginSearch();
                QCOMPARE(model->choice().row(), 0);
                QVERIFY(!model->choice().isTouched() && !model->choice().editedSSID());
                model->choice().chooseRow(chosen);
                model->reloadDataSource(found, [] {});
                QCOMPARE(model->choice().row(), row);
                QCOMPARE(model->choice().editedSSID(), typed);
                QVERIFY(model->choice().isTouched());
            });
    }

    void earlierAnswersAreDropped()
    {
        const auto model = makeModel({});
        QStringList answered;
        m_host.holdsScans = true;
        model->fetchWIFIList([&] { answered += u"first"_s; });
        model->fetchWIFIList([&] { answered += u"second"_s; });
        m_host.answerScans();
        QTRY_VERIFY(!answered.isEmpty());
        QCoreApplication::processEvents();
        QCOMPARE(answered, QStringList{u"second"_s});
        m_host.holdsScans = false;
    }

    void latePassword()
    {
        using Act = std::function<void(NetworkChoice &)>;
        const QString office = u"Office"_s;
        eachRow(
            {
                {"nothing touched", [](NetworkChoice &) {}, office, true, 0},
                {"password typed", [](NetworkChoice &choice) { choice.passwordTyped(); }, office, false, 1},
                {"name typed", [](NetworkChoice &choice) { choice.nameTyped(); }, office, false, 1},
                {"another row chosen", [](NetworkChoice &choice) { choice.chooseRow(1); }, office, false, 2},
                {"another network joined", [](NetworkChoice &) {}, u"Cafe"_s, false, 0},
            },
            [&](const Act &meanwhile, const QString &joinedNow, bool fills, int chosenRow) {
                const auto model = makeModel({});
                model->choice().filledFields(model->list_WIFI(), {});
                meanwhile(model->choice());
                WTApp::shared().selectedSSID = joinedNow;
                QCOMPARE(model->takeStoredPassword(u"Office"_s), fills);
                QCOMPARE(model->choice().row(), chosenRow);
            });
    }

    void whatARowAndTheNoteShow()
    {
        const auto model = makeModel({});
        model->reloadDataSource({network(u"Open"_s, 1), network(u"Enhanced open"_s, 13), network(u"WPA2"_s, 7)}, [] {});
        NetworkRows rows;
        rows.setNetworks(model->list_WIFI(), {}, 0);
        for (int row = 0; row < 3; ++row)
            QCOMPARE(rows.data(rows.index(row), NetworkRows::LockedRole).toBool(), row == 2);
        QCOMPARE(printerNote(u"QZ100"_s, u"4711"_s, 1, {}, {}).text, u"打印机：QZ100"_s);
    }

    void eachScreenHasItsBusyRule()
    {
        // Only the manual entry screen looks for the name without its hyphen.
        m_spooler.queues = {{"QZ100_USB", "4"}};
        QVERIFY(!makeModel({})->isWorkingWithPrintType(u"QZ-100"_s));
        QVERIFY(WTNetworkWithManualAdditionModel(m_spooler).isWorkingWithPrintType(u"QZ-100"_s));
    }

    void aScanMakesThePrinterBusy()
    {
        m_spooler.queues.clear();
        QTemporaryFile lock;
        QVERIFY(lock.open());
        m_resources.writeCatalogue(R"({"printer_info": [{"scaner_locker": ")" + lock.fileName().toUtf8() + R"("}]})");
        const auto model = makeModel({});
        QVERIFY(!model->isPrinterBusy(u"QZ100"_s));
        QCOMPARE(flock(lock.handle(), LOCK_SH), 0);
        QVERIFY(model->isPrinterBusy(u"QZ100"_s));
        flock(lock.handle(), LOCK_UN);
        m_spooler.queues = {{"QZ100_USB", "4"}};
        QVERIFY(model->isPrinterBusy(u"QZ100"_s));
    }

private:
    /// A model of Home, Cafe and Office, and a computer that is joined to `joined`.
    std::unique_ptr<WTWiFiListViewModel> makeModel(const QString &joined, const QString &password = {})
    {
        WTApp::shared().selectedSSID = joined;
        WTApp::shared().selectedAuthMode = wpa2OfThePlatform;
        WTApp::shared().selectedPassword = password;
        auto model = std::make_unique<WTWiFiListViewModel>(NetworkPorts{m_host, m_time, m_spooler});
        model->reloadDataSource({network(u"Home"_s), network(u"Cafe"_s, 1), network(u"Office"_s, 5)}, [] {});
        return model;
    }

    ResourceFolder m_resources;
    FakeHostWiFi m_host;
    FakeDesktop m_desktop;
    VirtualTime m_time;
    FakeSpooler m_spooler;
};

QTEST_GUILESS_MAIN(ListModelTests)
#include "ListModelTests.moc"
