#include "Rows.h"
#include "WTUITestService.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <stdexcept>

using namespace Qt::Literals::StringLiterals;

using Arguments = QList<QByteArray>;
using Text = std::optional<QString>;

class UITestServiceTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsArguments_data();
    void readsArguments();
    void parsesData();
    void readsSwitches();
};

void UITestServiceTests::readsArguments_data()
{
    const Text right = uR"(lp password "5550123")"_s;
    const Text wrong = uR"(lp password "24682468")"_s;
    const Rows<Arguments, bool, bool, Text, Text> row{"arguments", "uiTest", "printing", "appended",
                                                      "appendedToNothing"};
    row("without UITest", {"printing", "passwordError"}, false, false, u""_s, u""_s);
    row("not a whole argument", {"UITests"}, false, false, u""_s, u""_s);
    row("UITest", {"UITest"}, true, false, right, {});
    row("printing", {"printing", "UITest"}, true, true, right, {});
    row("wrong password", {"UITest", "passwordError"}, true, false, wrong, {});
}

void UITestServiceTests::readsArguments()
{
    QFETCH(Arguments, arguments);
    arguments.prepend("program");
    QList<char *> pointers;
    for (QByteArray &argument : arguments)
        pointers << argument.data();
    int count = int(pointers.size());
    const QCoreApplication program(count, pointers.data());
    QTEST(WTUITestService::startUITest(), "uiTest");
    QTEST(WTUITestService::testPrinting(), "printing");
    QTEST(WTUITestService::addPassWord(u"lp"_s), "appended");
    QTEST(WTUITestService::addPassWord(std::nullopt), "appendedToNothing");
}

void UITestServiceTests::parsesData()
{
    qunsetenv("USBPrinterInfo");
    QCOMPARE(WTUITestService::environmentDataForUSB(), QJsonArray());
    qputenv("USBPrinterInfo", R"({"name":"a"};[1])");
    QCOMPARE(WTUITestService::environmentDataForUSB(), QJsonArray({QJsonObject{{u"name"_s, u"a"_s}}, QJsonArray{1}}));
    for (const char *value : {"", "{}; name", "{};"}) {
        qputenv("NETPrinterInfo", value);
        QVERIFY_THROWS_EXCEPTION(std::invalid_argument, WTUITestService::environmentDataForNet());
    }
}

void UITestServiceTests::readsSwitches()
{
    using Switch = std::pair<const char *, bool (*)()>;
    const std::array switches{
        Switch{"wifiConfig", WTUITestService::testWiFiConfig},
        Switch{"wifiConfigFailure", WTUITestService::testWiFiConfigFailure},
        Switch{"wifiConfigSuccess", WTUITestService::testWiFiConfigSuccess},
        Switch{"WiFiError", WTUITestService::testWiFiError},
        Switch{"UpdatingError", WTUITestService::testUpdatingError},
        Switch{"NotInstallError", WTUITestService::testNotInstallError},
        Switch{"OtherError", WTUITestService::testOtherError},
        Switch{"ManualInstall", WTUITestService::testManualInstall},
    };
    for (std::size_t index = 0; index < switches.size(); ++index) {
        const auto &[variable, isOn] = switches[index];
        qputenv(variable, "yes");
        QVERIFY2(!isOn(), variable);
        qputenv(variable, "YES");
        QVERIFY2(isOn(), variable);
        for (std::size_t other = 0; other <= switches.size(); ++other)
            QCOMPARE(WTUITestService::checkUITestValues(other), other == index);
        qunsetenv(variable);
    }
}

QTEST_APPLESS_MAIN(UITestServiceTests)
#include "UITestServiceTests.moc"
