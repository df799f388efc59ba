#include "FailureText.h"

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
    QTest::addColumn<bool>("interfaceError");
    QTest::addColumn<bool>("capabilityError");
    QTest::addColumn<quint64>("code");
    QTest::addColumn<QString>("text");

    const QString any = u"配网失败"_s;
    const QString networkOff = u"打印机配置失败，当前打印机网络未开启，无法进行配网。"_s;
    const QString notFitted = u"打印机配置失败，当前打印机Wi-Fi模块未装配，无法进行配网。"_s;
    QTest::newRow("nothing said") << false << false << quint64{0} << any;
    QTest::newRow("code without its flag") << false << false << quint64{1} << any;
    QTest::newRow("interface") << true << false << quint64{0} << networkOff;
    QTest::newRow("not fitted") << false << true << quint64{0} << notFitted;
    QTest::newRow("fault") << false << true << quint64{1} << u"Wi-Fi故障，打印机配置失败。"_s;
    QTest::newRow("update") << false << true << quint64{2} << u"打印机配置失败，系统升级过程中，不允许配置网络。"_s;
    QTest::newRow("other reason") << false << true << quint64{3} << any;
    QTest::newRow("largest reason") << false << true << ~quint64{0} << any;
    QTest::newRow("capability wins") << true << true << quint64{0} << notFitted;
    QTest::newRow("other reason wins too") << true << true << quint64{3} << any;
}

void FailureTextTests::text()
{
    QFETCH(bool, interfaceError);
    QFETCH(bool, capabilityError);
    QFETCH(quint64, code);
    const FailureText failure = failureText(interfaceError, capabilityError, code);
    QTEST(failure.text, "text");
    QVERIFY(!failure.advice.isEmpty());
}

QTEST_GUILESS_MAIN(FailureTextTests)
#include "FailureTextTests.moc"
