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
    void readsArguments()
    {
        const Text right = uR"(lp password "5550123")"_s;
        const Text wrong = uR"(lp password "24682468")"_s;
        eachRow(
            {
                {"without UITest", {"printing", "passwordError"}, false, false, u""_s, u""_s},
                {"UITest", {"UITest"}, true, false, right, {}},
                {"printing", {"printing", "UITest"}, true, true, right, {}},
                {"wrong password", {"UITest", "passwordError"}, true, false, wrong, {}},
            },
            [&](Arguments arguments, bool uiTest, bool printing, const Text &appended, const Text &appendedToNothing) {
                arguments.prepend("program");
                QList<char *> pointers;
                for (QByteArray &argument : arguments)
                    pointers << argument.data();
                int count = int(pointers.size());
                const QCoreApplication program(count, pointers.data());
                QCOMPARE(WTUITestService::startUITest(), uiTest);
                QCOMPARE(WTUITestService::testPrinting(), printing);
                QCOMPARE(WTUITestService::addPassWord(u"lp"_s), appended);
                QCOMPARE(WTUITestService::addPassWord(std::nullopt), appendedToNothing);
            });
    }

    void parsesData()
    {
        qunsetenv("USBPrinterInfo");
        QCOMPARE(WTUITestService::environmentDataForUSB(), QJsonArray());
        qputenv("USBPrinterInfo", R"({"name":"a"};[1])");
        QCOMPARE(WTUITestService::environmentDataForUSB(),
                 QJsonArray({QJsonObject{{u"name"_s, u"a"_s}}, QJsonArray{1}}));
        for (const char *value : {"", "{}; name", "{};"}) {
            qputenv("NETPrinterInfo", value);
            QVERIFY_THROWS_EXCEPTION(std::invalid_argument, WTUITestService::environmentDataForNet());
        }
    }
};

QTEST_APPLESS_MAIN(UITestServiceTests)
#include "UITestServiceTests.moc"
