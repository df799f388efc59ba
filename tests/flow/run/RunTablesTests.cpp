#include "AddressAnswer.h"
#include "CapabilityAnswer.h"
#include "ConfigurationAnswer.h"
#include "RunOutcome.h"

#include <QTest>

using Screen = RunOutcome::Screen;

Q_DECLARE_METATYPE(CapabilityDecision)
Q_DECLARE_METATYPE(ConfigurationDecision)
Q_DECLARE_METATYPE(std::optional<RunEnd>)

/// Every row of the run's decision tables, those included that no printer command produces.
class RunTablesTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void capability_data();
    void capability();
    void configuration_data();
    void configuration();
    void address_data();
    void address();
    void endCode_data();
    void endCode();
};

void RunTablesTests::capability_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<int>("code");
    QTest::addColumn<CapabilityDecision>("decision");

    using enum CapabilityDecision::Action;
    const CapabilityDecision configure{Configure};
    const CapabilityDecision unknown{ShowError, CapabilityReason::Unknown};
    QTest::newRow("supported") << 0 << 1 << configure;
    QTest::newRow("0xFFFA") << 0 << 0xFFFA << configure;
    QTest::newRow("0xFFFF") << 0 << 0xFFFF << configure;
    QTest::newRow("communication") << 0 << 0xFFFB << CapabilityDecision{CommunicationFailure};
    QTest::newRow("0xFFFC") << 0 << 0xFFFC << unknown;
    QTest::newRow("fault") << 0 << 0xFFFD << CapabilityDecision{ShowError, CapabilityReason::WiFiFault};
    QTest::newRow("no module") << 0 << 0xFFFE << CapabilityDecision{ShowError, CapabilityReason::NoWiFiModule};
    QTest::newRow("0") << 0 << 0 << unknown;
    QTest::newRow("2") << 0 << 2 << unknown;
    QTest::newRow("0xFFF9") << 0 << 0xFFF9 << unknown;
    QTest::newRow("no header") << 1 << 0 << unknown;
    QTest::newRow("an error outranks a good code") << 3 << 1 << unknown;
    QTest::newRow("a negative error too") << -1 << 0xFFFB << unknown;
}

void RunTablesTests::capability()
{
    QFETCH(int, status);
    QFETCH(int, code);
    QFETCH(CapabilityDecision, decision);
    const CapabilityDecision decided = capabilityDecision(status, quint16(code));
    QCOMPARE(decided.action, decision.action);
    if (decision.action == CapabilityDecision::Action::ShowError)
        QCOMPARE(decided.reason, decision.reason);
}

void RunTablesTests::configuration_data()
{
    QTest::addColumn<int>("errorCode");
    QTest::addColumn<int>("respCode");
    QTest::addColumn<ConfigurationDecision>("decision");

    using enum ConfigurationDecision::Action;
    const ConfigurationDecision poll{PollAddress};
    const ConfigurationDecision nothing{Nothing};
    const ConfigurationDecision interfaceError{End, RunEndCode::InterfaceError};
    QTest::newRow("accepted") << 0 << 1 << poll;
    QTest::newRow("0xFFFA") << 0 << 0xFFFA << poll;
    QTest::newRow("0xFFFD") << 0 << 0xFFFD << poll;
    QTest::newRow("0xFFFE") << 0 << 0xFFFE << poll;
    QTest::newRow("0") << 0 << 0 << ConfigurationDecision{CloseTimer};
    QTest::newRow("0xFFFB") << 0 << 0xFFFB << interfaceError;
    QTest::newRow("upgrading") << 0 << 0xFFFC << ConfigurationDecision{End, RunEndCode::Upgrading};
    QTest::newRow("0xFFFF") << 0 << 0xFFFF << interfaceError;
    QTest::newRow("refused") << 1 << 1 << ConfigurationDecision{End, RunEndCode::ConfigurationFailed};
    QTest::newRow("unreachable") << 2 << 31 << ConfigurationDecision{End, RunEndCode::Unreachable};
    QTest::newRow("again") << 3 << 0 << ConfigurationDecision{Retry};
    QTest::newRow("4") << 4 << 1 << nothing;
    QTest::newRow("99") << 99 << 0 << nothing;
    QTest::newRow("-1") << -1 << 1 << nothing;
}

void RunTablesTests::configuration()
{
    QFETCH(int, errorCode);
    QFETCH(int, respCode);
    QFETCH(ConfigurationDecision, decision);
    const ConfigurationDecision decided = configurationDecision(errorCode, quint16(respCode));
    QCOMPARE(decided.action, decision.action);
    if (decision.action == ConfigurationDecision::Action::End)
        QCOMPARE(decided.endCode, decision.endCode);
}

void RunTablesTests::address_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<bool>("handled");
    QTest::addColumn<bool>("succeeds");
    QTest::addColumn<int>("tag");
    QTest::addColumn<QByteArray>("logFormat");

    QTest::newRow("success") << 0 << true << true << 0 << QByteArray("WTACL_Success:%@");
    QTest::newRow("failure") << 1 << true << false << 1026 << QByteArray("WTACL_Fail:%@");
    QTest::newRow("library error") << 2 << false << false << 0 << QByteArray();
    QTest::newRow("another command's") << 3 << true << false << 1025 << QByteArray("WTACL_OtherAcl:%@");
    QTest::newRow("4") << 4 << false << false << 0 << QByteArray();
    QTest::newRow("too short") << 5 << false << false << 0 << QByteArray();
    QTest::newRow("no address") << 6 << true << false << 1028 << QByteArray("WTACL_Response_dataError:%@");
    QTest::newRow("no data") << 7 << true << false << 1024 << QByteArray("WTACL_Response_nodataError:%@");
    QTest::newRow("8") << 8 << false << false << 0 << QByteArray();
}

void RunTablesTests::address()
{
    QFETCH(int, status);
    QFETCH(bool, handled);
    const auto decision = addressDecision(status);
    QCOMPARE(decision.has_value(), handled);
    if (!handled)
        return;
    QTEST(decision->action == AddressDecision::Action::Succeed, "succeeds");
    QTEST(int(decision->tag), "tag");
    QTEST(QByteArray(decision->logFormat), "logFormat");
}

void RunTablesTests::endCode_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<std::optional<RunEnd>>("end");

    const auto row = [](int code, const std::optional<RunEnd> &end) { QTest::addRow("%d", code) << code << end; };
    row(0, RunEnd{{Screen::Failed, false}});
    row(1, {});
    row(2, {});
    row(3, RunEnd{{Screen::Complete}, true});
    row(4, RunEnd{{Screen::ConfigFailed}});
    row(5, RunEnd{{Screen::Failed, false}});
    row(6, RunEnd{{Screen::Failed, true}});
    row(7, RunEnd{{Screen::Failed, {}, true, 2}, true});
    row(8, {});
    row(-1, {});
}

void RunTablesTests::endCode()
{
    QFETCH(int, code);
    QFETCH(std::optional<RunEnd>, end);
    QVERIFY(runEnd(code) == end);
}

QTEST_GUILESS_MAIN(RunTablesTests)
#include "RunTablesTests.moc"
