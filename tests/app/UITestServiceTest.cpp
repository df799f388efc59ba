#include "WTUITestService.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <QTest>
#include <stdexcept>

using namespace Qt::Literals::StringLiterals;

namespace
{

/// The program as if it had been started with these arguments.
class Launched
{
public:
    explicit Launched(const QList<QByteArray> &arguments)
        : m_arguments(QList<QByteArray>{"program"} + arguments)
    {
        for (QByteArray &argument : m_arguments)
            m_pointers << argument.data();
        m_count = int(m_pointers.size());
        m_application.emplace(m_count, m_pointers.data());
    }

private:
    QList<QByteArray> m_arguments;
    QList<char *> m_pointers;
    int m_count = 0;
    std::optional<QCoreApplication> m_application;
};

using Arguments = QList<QByteArray>;
using Text = std::optional<QString>;

} // namespace

class UITestServiceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsArguments_data();
    void readsArguments();
    void parsesData_data();
    void parsesData();
    void refusesWhatIsNoJson_data();
    void refusesWhatIsNoJson();
    void readsSwitches();
};

void UITestServiceTest::readsArguments_data()
{
    QTest::addColumn<Arguments>("arguments");
    QTest::addColumn<bool>("uiTest");
    QTest::addColumn<bool>("printing");
    QTest::addColumn<Text>("appended");
    QTest::addColumn<Text>("appendedToNothing");

    const Text empty = u""_s;
    QTest::newRow("none") << Arguments{} << false << false << empty << empty;
    QTest::newRow("without UITest") << Arguments{"printing", "passwordError"} << false << false << empty << empty;
    QTest::newRow("not a whole argument") << Arguments{"UITests"} << false << false << empty << empty;
    QTest::newRow("UITest") << Arguments{"UITest"} << true << false << Text(uR"(lp password "5550123")"_s) << Text();
    QTest::newRow("printing") << Arguments{"printing", "UITest"} << true << true << Text(uR"(lp password "5550123")"_s)
                              << Text();
    QTest::newRow("wrong password") << Arguments{"UITest", "passwordError"} << true << false
                                    << Text(uR"(lp password "24682468")"_s) << Text();
}

void UITestServiceTest::readsArguments()
{
    QFETCH(Arguments, arguments);
    const Launched program(arguments);
    QTEST(WTUITestService::startUITest(), "uiTest");
    QTEST(WTUITestService::testPrinting(), "printing");
    QTEST(WTUITestService::addPassWord(u"lp"_s), "appended");
    QTEST(WTUITestService::addPassWord(std::nullopt), "appendedToNothing");
}

void UITestServiceTest::parsesData_data()
{
    QTest::addColumn<std::optional<QByteArray>>("value");
    QTest::addColumn<QJsonArray>("data");

    QTest::newRow("absent") << std::optional<QByteArray>() << QJsonArray{};
    QTest::newRow("two objects") << std::optional<QByteArray>(R"({"name":"a"};{"name":"b"})")
                                 << QJsonArray{QJsonObject{{u"name"_s, u"a"_s}}, QJsonObject{{u"name"_s, u"b"_s}}};
    // Braces around a single array mean a copy to one compiler and an array of arrays to the other.
    QJsonArray array;
    array.append(QJsonArray{1});
    QTest::newRow("an array") << std::optional<QByteArray>("[1]") << array;
}

void UITestServiceTest::parsesData()
{
    QFETCH(std::optional<QByteArray>, value);
    if (value)
        qputenv("USBPrinterInfo", *value);
    else
        qunsetenv("USBPrinterInfo");
    QTEST(WTUITestService::environmentDataForUSB(), "data");
}

void UITestServiceTest::refusesWhatIsNoJson_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("no JSON") << QByteArray("{}; name");
    QTest::newRow("a last separator") << QByteArray("{};");
}

void UITestServiceTest::refusesWhatIsNoJson()
{
    QFETCH(QByteArray, value);
    qputenv("NETPrinterInfo", value);
    QVERIFY_THROWS_EXCEPTION(std::invalid_argument, WTUITestService::environmentDataForNet());
}

void UITestServiceTest::readsSwitches()
{
    struct Switch {
        const char *variable;
        bool (*isOn)();
    };
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
        QVERIFY2(!isOn(), variable);
        qputenv(variable, "yes");
        QVERIFY2(!isOn(), variable);
        qputenv(variable, "YES");
        QVERIFY2(isOn(), variable);
        for (std::size_t other = 0; other <= switches.size(); ++other)
            QCOMPARE(WTUITestService::checkUITestValues(other), other == index);
        qunsetenv(variable);
    }
}

QTEST_APPLESS_MAIN(UITestServiceTest)
#include "UITestServiceTest.moc"
