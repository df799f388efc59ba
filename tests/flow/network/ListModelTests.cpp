#include "FakeHost.h"
#include "FakeSpooler.h"
#include "PermissionAnswer.h"
#include "ResourceFolder.h"
#include "Rows.h"
#include "VirtualTime.h"
#include "WTApp.h"
#include "WTNetworkWithManualAdditionModel.h"
#include "WTWiFiListViewModel.h"

#include <QTemporaryFile>
#include <sys/file.h>

using namespace Qt::Literals::StringLiterals;

using Step = PermissionAnswer::Step;

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
    void initTestCase();
    void order_data();
    void order();
    void choiceFillsTheFields();
    void behindTheEndTheChoiceStays();
    void chosenRowStaysWithItsNetwork_data();
    void chosenRowStaysWithItsNetwork();
    void earlierAnswersAreDropped();
    void permission_data();
    void permission();
    void mustFetchPassword_data();
    void mustFetchPassword();
    void latePassword_data();
    void latePassword();
    void eachScreenHasItsBusyRule();
    void aScanMakesThePrinterBusy();

private:
    /// A model of Home, Cafe and Office, and a computer that is joined to `joined`.
    std::unique_ptr<WTWiFiListViewModel> makeModel(const QString &joined, const QString &password = {});

    ResourceFolder m_resources;
    FakeHostWiFi m_host;
    FakeDesktop m_desktop;
    VirtualTime m_time;
    FakeSpooler m_spooler;
};

void ListModelTests::initTestCase()
{
    WTC_WLAN::usePort(m_host);
    WTApp::usePorts(m_host, m_desktop, {});
}

std::unique_ptr<WTWiFiListViewModel> ListModelTests::makeModel(const QString &joined, const QString &password)
{
    WTApp::shared().selectedSSID = joined;
    WTApp::shared().selectedAuthMode = wpa2OfThePlatform;
    WTApp::shared().selectedPassword = password;
    auto model = std::make_unique<WTWiFiListViewModel>(NetworkPorts{m_host, m_time, m_spooler});
    model->reloadDataSource({network(u"Home"_s), network(u"Cafe"_s, 1), network(u"Office"_s, 5)}, [] {});
    return model;
}

void ListModelTests::order_data()
{
    const Rows<QString, QString> row{"joined", "names"};
    row("joined network first", u"Office"_s, u"Office* Home Cafe Home"_s);
    row("an open one of its name behind it", u"Home"_s, u"Home* Home Cafe Office"_s);
    row("not joined", {}, u"Home Cafe Office Home"_s);
    row("out of sight", u"Elsewhere"_s, u"Home Cafe Office Home"_s);
}

void ListModelTests::order()
{
    QFETCH(QString, joined);
    const auto model = makeModel(joined, u"secret"_s);
    model->reloadDataSource({network(u"Home"_s, 1), network(u"Cafe"_s), network(u"Office"_s), network(u"Home"_s)},
                            [] {});
    QStringList names;
    for (const WTWiFiPtr &listed : model->list_WIFI())
        names += *listed->SSID + (listed->password == u"secret"_s ? u"*"_s : QString());
    QTEST(names.join(u' '), "names");
}

void ListModelTests::choiceFillsTheFields()
{
    const auto model = makeModel(u"Home"_s, u"secret"_s);
    NetworkChoice &choice = model->choice();
    const auto filled = [&] { return choice.filledFields(model->list_WIFI(), {u"Typed"_s, u"typed"_s}); };
    QCOMPARE(filled(), (NetworkEntry{u"Home"_s, u"secret"_s}));
    choice.chooseRow(2);
    QCOMPARE(filled(), (NetworkEntry{u"Office"_s, {}}));
    // A typed name is the choice until a row is chosen again.
    choice.nameTyped();
    QCOMPARE(filled(), (NetworkEntry{u"Typed"_s, {}}));
    QCOMPARE(choice.selectedWiFi(model->list_WIFI(), {u"Typed"_s, {}})->security, 0);
    choice.chooseRow(2);
    QCOMPARE(filled(), (NetworkEntry{u"Office"_s, {}}));
    QCOMPARE(choice.selectedWiFi(model->list_WIFI(), {})->security, 5);
    QVERIFY(!choice.filledFields({}, {u"Typed"_s, {}}));
}

void ListModelTests::behindTheEndTheChoiceStays()
{
    const auto model = makeModel({});
    NetworkChoice &choice = model->choice();
    const WTWiFiPtr first = choice.selectedWiFi(model->list_WIFI(), {});
    choice.chooseRow(3);
    QCOMPARE(choice.selectedWiFi(model->list_WIFI(), {}), first);
    QCOMPARE(first->SSID, u"Home"_s);
}

void ListModelTests::chosenRowStaysWithItsNetwork_data()
{
    using Networks = std::vector<WTC_WLAN>;
    const Rows<int, Networks, int, bool> row{"chosen", "found", "row", "typed"};
    const WTC_WLAN home = network(u"Home"_s), cafe = network(u"Cafe"_s, 1), office = network(u"Office"_s, 5);
    row("moves up", 2, {office, home}, 0, false);
    row("moves down from the first row", 0, {cafe, office, home}, 2, false);
    row("an open one took its name", 2, {home, network(u"Office"_s, 1)}, 0, true);
    row("is gone", 1, {home}, 0, true);
}

void ListModelTests::chosenRowStaysWithItsNetwork()
{
    QFETCH(int, chosen);
    QFETCH(std::vector<WTC_WLAN>, found);
    const auto model = makeModel({});
    model->choice().chooseRow(2);
    model->choice().nameTyped();
    model->beginSearch();
    QCOMPARE(model->choice().row(), 0);
    QVERIFY(!model->choice().isTouched() && !model->choice().editedSSID());
    model->choice().chooseRow(chosen);
    model->reloadDataSource(found, [] {});
    QTEST(model->choice().row(), "row");
    QTEST(model->choice().editedSSID(), "typed");
    QVERIFY(model->choice().isTouched());
}

void ListModelTests::earlierAnswersAreDropped()
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

void ListModelTests::permission_data()
{
    const Rows<int, Step> row{"status", "step"};
    row("not determined", 0, Step::AskPerson);
    row("restricted", 1, Step::LeaveAndLook);
    row("denied", 2, Step::AskPerson);
    row("allowed", 3, Step::Look);
    row("unknown", 4, Step::LookAnyway);
    row("negative", -1, Step::LookAnyway);
}

void ListModelTests::permission()
{
    QFETCH(int, status);
    QTEST(permissionAnswer(status).step, "step");
}

void ListModelTests::mustFetchPassword_data()
{
    using Name = std::optional<QString>;
    const Rows<bool, Name, Name, bool> row{"connected", "joined", "current", "fetches"};
    row("the same network", true, u"Home"_s, u"Home"_s, false);
    row("another network", true, u"Home"_s, u"Cafe"_s, true);
    row("the first network", true, u"Home"_s, {}, true);
    row("not connected", false, u"Home"_s, {}, false);
}

void ListModelTests::mustFetchPassword()
{
    QFETCH(bool, connected);
    QFETCH(std::optional<QString>, joined);
    QFETCH(std::optional<QString>, current);
    QTEST(WTWiFiListViewModel::mustFetchPassword(connected, joined, current), "fetches");
}

void ListModelTests::latePassword_data()
{
    using Act = std::function<void(NetworkChoice &)>;
    const Rows<Act, QString, bool, int> row{"meanwhile", "joinedNow", "fills", "chosenRow"};
    const QString office = u"Office"_s;
    row(
        "nothing touched", [](NetworkChoice &) {}, office, true, 0);
    row(
        "password typed", [](NetworkChoice &choice) { choice.passwordTyped(); }, office, false, 1);
    row(
        "name typed", [](NetworkChoice &choice) { choice.nameTyped(); }, office, false, 1);
    row(
        "another row chosen", [](NetworkChoice &choice) { choice.chooseRow(1); }, office, false, 2);
    row(
        "another network joined", [](NetworkChoice &) {}, u"Cafe"_s, false, 0);
}

void ListModelTests::latePassword()
{
    QFETCH(std::function<void(NetworkChoice &)>, meanwhile);
    QFETCH(QString, joinedNow);
    const auto model = makeModel({});
    model->choice().filledFields(model->list_WIFI(), {});
    meanwhile(model->choice());
    WTApp::shared().selectedSSID = joinedNow;
    QTEST(model->takeStoredPassword(u"Office"_s), "fills");
    QTEST(model->choice().row(), "chosenRow");
}

void ListModelTests::eachScreenHasItsBusyRule()
{
    // Only the manual entry screen looks for the name without its hyphen.
    m_spooler.queues = {{"QZ100_USB", "4"}};
    QVERIFY(!makeModel({})->isWorkingWithPrintType(u"QZ-100"_s));
    QVERIFY(WTNetworkWithManualAdditionModel(m_spooler).isWorkingWithPrintType(u"QZ-100"_s));
}

void ListModelTests::aScanMakesThePrinterBusy()
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

QTEST_GUILESS_MAIN(ListModelTests)
#include "ListModelTests.moc"
