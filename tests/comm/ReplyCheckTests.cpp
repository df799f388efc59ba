#include "ConfigurationOutcome.h"
#include "LogCollector.h"
#include "PrinterExchange.h"
#include "Rows.h"
#include "TextFormat.h"
#include "WTManager.h"

using namespace Qt::Literals::StringLiterals;

/// The decisions about a reply, without a printer.
class ReplyCheckTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void checksAReplyHeader_data();
    void checksAReplyHeader();
    void needsNoCallbackForAMatchingHeader();
    void judgesAFinishedConfiguration();
    void acceptsOnlyWholeHeadersOfTheCommand();
};

void ReplyCheckTests::checksAReplyHeader_data()
{
    const auto bytes = [](const char *hex) { return QByteArray::fromHex(hex); };
    const QStringList noHeader{u"error: no header data!"_s};
    const QStringList mismatch{u"error: cmd not match!"_s};
    const Rows<std::optional<QByteArray>, int, quint16, QStringList> row{"header", "status", "result", "errors"};
    row("absent", std::nullopt, 1, 0, noHeader);
    row("empty", "", 1, 0, noHeader);
    row("too short for a result", bytes("00acff8100"), 1, 0, noHeader);
    row("matching", bytes("00acff81fffb00b00000000000000000"), 0, 0xFFFB, {});
    row("no longer than its result", bytes("00acff810102"), 0, 0x0102, {});
    row("another command", bytes("00acff82000100000000000000000000"), 3, 0, mismatch);
    row("the command in the other byte order", bytes("00ac81ff0001"), 3, 0, mismatch);
}

void ReplyCheckTests::checksAReplyHeader()
{
    QFETCH(std::optional<QByteArray>, header);
    QFETCH(int, status);
    QFETCH(quint16, result);
    QFETCH(QStringList, errors);
    const LogCollector log;

    int calls = 0;
    WTManager::wt_cmd(0xFF81, header, [&](const ResultAnswer &answer) {
        ++calls;
        QCOMPARE(static_cast<int>(answer.status), status);
        QCOMPARE(answer.cause.has_value(), status != 0);
        QCOMPARE(answer.result, result);
        QCOMPARE(log.writtenSoFar().filter(u"error: "_s), errors);
    });
    QCOMPARE(calls, 1);
    QCOMPARE(log.lines().constFirst(),
             u"info: send_cmd:0xFF81 header data:"_s + describeReplyHeader(header).value_or(u"(null)"_s));
    QCOMPARE(log.lines().contains(u"info: cb_success!"_s), status == 0);
}

void ReplyCheckTests::needsNoCallbackForAMatchingHeader()
{
    const LogCollector log;
    WTManager::wt_cmd(0xFF21, QByteArray::fromHex("00acff210000"), nullptr);
    QCOMPARE(
        log.lines(),
        (QStringList{u"info: send_cmd:0xFF21 header data:{length = 6, command = 0xFF21, result = 0x0000, data = 0}"_s,
                     u"info: recv_cmd:0xFF21 result:0x0"_s}));
}

void ReplyCheckTests::judgesAFinishedConfiguration()
{
    using Status = WTPrinterStatus;
    const WTError unreachable{wtcErrorDomain, 31, {}};
    const WTError timedOut{wtcErrorDomain, 32, {}};
    const WTError refused = PrinterExchange::refusal(0xFF80, 7);
    QVERIFY(configurationOutcome(false, {}, 7) == (ResultAnswer{Status::NoHeader, 7, refused}));
    QVERIFY(configurationOutcome(false, unreachable, 1) == (ResultAnswer{Status::LibraryError31, 31, unreachable}));
    QVERIFY(configurationOutcome(true, unreachable, 1) == (ResultAnswer{Status::Success, 1}));
    QVERIFY(configurationOutcome(false, timedOut, 1) == (ResultAnswer{Status::Success, 1}));
    QVERIFY(configurationOutcome(false, timedOut, 0) == (ResultAnswer{Status::NoHeader, 0, timedOut}));
}

void ReplyCheckTests::acceptsOnlyWholeHeadersOfTheCommand()
{
    const QByteArray whole = QByteArray::fromHex("00acff0f000101100000000000000000");
    for (int size = 0; size <= 40; ++size) {
        bool stop = false;
        const auto accepted = PrinterExchange::acceptedHeader(0xFF0F, whole.leftJustified(size, '\0', true), &stop);
        QCOMPARE(accepted.has_value(), size == kACLHeadSize);
        QCOMPARE(stop, size != kACLHeadSize);
    }
    bool stop = false;
    QVERIFY(!PrinterExchange::acceptedHeader(0xFF0F, std::nullopt, &stop) && !stop);
    QVERIFY(!PrinterExchange::acceptedHeader(0xFF80, whole, &stop) && stop);
}

QTEST_APPLESS_MAIN(ReplyCheckTests)
#include "ReplyCheckTests.moc"
