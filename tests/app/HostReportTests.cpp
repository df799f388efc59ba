#include "FakeHost.h"
#include "HostReport.h"
#include "WTApp.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

using Entries = QMap<QString, QString>;

class HostReportTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parses();
    void asksOnceAndFallsBack();
};

void HostReportTests::parses()
{
    QCOMPARE(parseHostReport({}), Entries{});
    const QString report = u"Hardware:\n  Boot Volume :\t Disk \nTime since boot: 3:21\nnothing\nOwner: \nA: 1\nA: 2"_s;
    QCOMPARE(parseHostReport(report), (Entries{{u"Boot Volume"_s, u"Disk"_s}, {u"Owner"_s, u""_s}, {u"A"_s, u"1"_s}}));
}

void HostReportTests::asksOnceAndFallsBack()
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

QTEST_GUILESS_MAIN(HostReportTests)
#include "HostReportTests.moc"
