#include "HostReport.h"
#include "Banner.h"
#include "FakeHost.h"
#include "WTApp.h"

#include <QTest>
#include <clocale>
#include <cwchar>

using namespace Qt::Literals::StringLiterals;

using Entries = QMap<QString, QString>;

class HostReportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parses_data();
    void parses();
    void asksOnceAndFallsBack();
    void drawsBannersInOneWidth();
};

void HostReportTest::parses_data()
{
    QTest::addColumn<QString>("report");
    QTest::addColumn<Entries>("entries");

    QTest::newRow("empty") << u""_s << Entries{};
    QTest::newRow("trimmed") << u"  Boot Volume :\t Disk \n"_s << Entries{{u"Boot Volume"_s, u"Disk"_s}};
    QTest::newRow("two colons") << u"Time since boot: 3:21"_s << Entries{};
    QTest::newRow("no colon") << u"Hardware"_s << Entries{};
    QTest::newRow("a heading") << u"Hardware:\n  Model: T1"_s << Entries{{u"Model"_s, u"T1"_s}};
    QTest::newRow("only white space behind") << u"Owner: "_s << Entries{{u"Owner"_s, u""_s}};
    QTest::newRow("the first of two") << u"Disk: one\nDisk: two"_s << Entries{{u"Disk"_s, u"one"_s}};
}

void HostReportTest::parses()
{
    QFETCH(QString, report);
    QTEST(parseHostReport(report), "entries");
}

void HostReportTest::asksOnceAndFallsBack()
{
    FakeHostWiFi hostWiFi;
    FakeDesktop desktop;
    desktop.report = u"Kernel: 6"_s;
    WTApp::usePorts(hostWiFi, desktop, {});

    QCOMPARE(WTApp::shared().systemVersion(), u"Test System 1"_s);
    desktop.report = u"System Version: Another"_s;
    QCOMPARE(WTApp::shared().systemVersion(), u"Test System 1"_s);
    QCOMPARE(WTApp::shared().deviceInfo(), (Entries{{u"Kernel"_s, u"6"_s}}));
    QCOMPARE(desktop.reportCount, 1);
}

void HostReportTest::drawsBannersInOneWidth()
{
    QVERIFY(std::setlocale(LC_CTYPE, "C.UTF-8"));
    const auto widths = [](const auto &banner) {
        QList<int> columnsOfLines;
        for (const char *line : banner) {
            const std::wstring characters = QString::fromUtf8(line).toStdWString();
            const int columns = wcswidth(characters.data(), characters.size());
            columnsOfLines << (columns == int(characters.size()) ? columns : -1);
        }
        return columnsOfLines;
    };
    QCOMPARE(widths(startBanner), QList<int>(9, 80));
    QCOMPARE(widths(farewellBanner), QList<int>(10, 50));
}

QTEST_GUILESS_MAIN(HostReportTest)
#include "HostReportTest.moc"
