#include "FailureText.h"
#include "Rows.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// Which text the failure screen shows.
class FailureTextTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void text_data();
    void text();
};

void FailureTextTests::text_data()
{
    const QString any = u"配网失败"_s;
    const QString networkOff = u"打印机配置失败，当前打印机网络未开启，无法进行配网。"_s;
    const QString notFitted = u"打印机配置失败，当前打印机Wi-Fi模块未装配，无法进行配网。"_s;
    const Rows<bool, bool, quint64, QString> row{"interfaceError", "capabilityError", "reason", "text"};
    row("nothing said", false, false, 0, any);
    row("reason without its flag", false, false, 1, any);
    row("interface", true, false, 0, networkOff);
    row("not fitted", false, true, 0, notFitted);
    row("fault", false, true, 1, u"Wi-Fi故障，打印机配置失败。"_s);
    row("update", false, true, 2, u"打印机配置失败，系统升级过程中，不允许配置网络。"_s);
    row("unknown reason", false, true, 3, any);
    row("largest reason", false, true, ~quint64{0}, any);
    row("capability wins", true, true, 0, notFitted);
}

void FailureTextTests::text()
{
    QFETCH(bool, interfaceError);
    QFETCH(bool, capabilityError);
    QFETCH(quint64, reason);
    const FailureText failure = failureText(interfaceError, capabilityError, CapabilityReason(reason));
    QTEST(failure.text, "text");
    QVERIFY(!failure.advice.isEmpty());
}

QTEST_GUILESS_MAIN(FailureTextTests)
#include "FailureTextTests.moc"
