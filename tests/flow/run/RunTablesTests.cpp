#include "Rows.h"
#include "RunAnswers.h"

#include <QTest>

using Screen = RunOutcome::Screen;

Q_DECLARE_METATYPE(CapabilityDecision)
Q_DECLARE_METATYPE(ConfigurationDecision)
Q_DECLARE_METATYPE(std::optional<RunEnd>)

/// Every row of the run's decision tables by its number on the wire, those included that no printer command produces.
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
    using enum CapabilityDecision::Action;
    const CapabilityDecision configure{Configure};
    const CapabilityDecision unknown{ShowError, CapabilityReason::Unknown};
    const Rows<int, quint16, CapabilityDecision> row{"status", "result", "decision"};
    row("supported", 0, 1, configure);
    row("0xFFFA", 0, 0xFFFA, configure);
    row("0xFFFF", 0, 0xFFFF, configure);
    row("communication", 0, 0xFFFB, CapabilityDecision{CommunicationFailure});
    row("0xFFFC", 0, 0xFFFC, unknown);
    row("fault", 0, 0xFFFD, CapabilityDecision{ShowError, CapabilityReason::WiFiFault});
    row("no module", 0, 0xFFFE, CapabilityDecision{ShowError, CapabilityReason::NoWiFiModule});
    row("0", 0, 0, unknown);
    row("0xFFF9", 0, 0xFFF9, unknown);
    row("an error outranks a good result", 3, 1, unknown);
    row("a negative error too", -1, 0xFFFB, unknown);
}

void RunTablesTests::capability()
{
    QFETCH(int, status);
    QFETCH(quint16, result);
    QTEST(capabilityDecision(WTPrinterStatus(status), CapabilityResult(result)), "decision");
}

void RunTablesTests::configuration_data()
{
    using enum ConfigurationDecision::Action;
    const ConfigurationDecision poll{PollAddress};
    const ConfigurationDecision nothing{Nothing};
    const ConfigurationDecision interfaceError{End, RunEndCode::InterfaceError};
    const Rows<int, quint16, ConfigurationDecision> row{"status", "result", "decision"};
    row("joined", 0, 1, poll);
    row("0xFFFA", 0, 0xFFFA, poll);
    row("0xFFFD", 0, 0xFFFD, poll);
    row("0xFFFE", 0, 0xFFFE, poll);
    row("0", 0, 0, ConfigurationDecision{CloseTimer});
    row("0xFFFB", 0, 0xFFFB, interfaceError);
    row("upgrading", 0, 0xFFFC, ConfigurationDecision{End, RunEndCode::Upgrading});
    row("0xFFFF", 0, 0xFFFF, interfaceError);
    row("refused", 1, 1, ConfigurationDecision{End, RunEndCode::ConfigurationFailed});
    row("unreachable", 2, 31, ConfigurationDecision{End, RunEndCode::Unreachable});
    row("again", 3, 0, ConfigurationDecision{Retry});
    row("4", 4, 1, nothing);
    row("no data", 7, 0, nothing);
    row("-1", -1, 1, nothing);
}

void RunTablesTests::configuration()
{
    QFETCH(int, status);
    QFETCH(quint16, result);
    QTEST(configurationDecision(WTPrinterStatus(status), ConfigurationResult(result)), "decision");
}

void RunTablesTests::address_data()
{
    using enum AddressDecision::Action;
    const Rows<int, AddressDecision::Action, quint64, QByteArray> row{"status", "action", "tag", "logFormat"};
    row("success", 0, Succeed, 0, "WTACL_Success:%@");
    row("failure", 1, Retry, 1026, "WTACL_Fail:%@");
    row("library error", 2, Nothing, 0, {});
    row("another command's", 3, Retry, 1025, "WTACL_OtherAcl:%@");
    row("4", 4, Nothing, 0, {});
    row("too short", 5, Nothing, 0, {});
    row("no address", 6, Retry, 1028, "WTACL_Response_dataError:%@");
    row("no data", 7, Retry, 1024, "WTACL_Response_nodataError:%@");
}

void RunTablesTests::address()
{
    QFETCH(int, status);
    const AddressDecision decision = addressDecision(WTPrinterStatus(status));
    QTEST(decision.action, "action");
    QTEST(decision.tag, "tag");
    QTEST(QByteArray(decision.logFormat), "logFormat");
}

void RunTablesTests::endCode_data()
{
    const Rows<int, std::optional<RunEnd>> row{"code", "end"};
    row("0", 0, RunEnd{{Screen::Failed, false}});
    row("1", 1, {});
    row("3", 3, RunEnd{{Screen::Complete}, true});
    row("4", 4, RunEnd{{Screen::ConfigFailed}});
    row("5", 5, RunEnd{{Screen::Failed, false}});
    row("6", 6, RunEnd{{Screen::Failed, true}});
    row("7", 7, RunEnd{{Screen::Failed, {}, true, CapabilityReason::Upgrading}, true});
    row("-1", -1, {});
}

void RunTablesTests::endCode()
{
    QFETCH(int, code);
    QTEST(runEnd(RunEndCode(code)), "end");
}

QTEST_GUILESS_MAIN(RunTablesTests)
#include "RunTablesTests.moc"
