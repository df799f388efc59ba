#include "ConfigurationOutcome.h"
#include "LogCollector.h"
#include "PrinterExchange.h"
#include "TextFormat.h"
#include "WTManager.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// The decisions about a reply, without a printer.
class ReplyCheckTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void checksAReplyHeader_data();
    void checksAReplyHeader();
    void needsNoCallbackForAMatchingHeader();
    void judgesAFinishedConfiguration_data();
    void judgesAFinishedConfiguration();
    void acceptsOnlyWholeHeadersOfTheCommand();
};

void ReplyCheckTest::checksAReplyHeader_data()
{
    QTest::addColumn<std::optional<QByteArray>>("header");
    QTest::addColumn<int>("status");
    QTest::addColumn<quint16>("result");
    QTest::addColumn<QStringList>("synchronousErrors");

    const auto row = [](const char *name, const std::optional<QByteArray> &hex, int status, int result,
                        const QStringList &errors) {
        const auto bytes = hex ? std::optional{QByteArray::fromHex(*hex)} : std::nullopt;
        QTest::newRow(name) << bytes << status << static_cast<quint16>(result) << errors;
    };
    const QStringList noHeader{u"error: no header data!"_s};
    const QStringList mismatch{u"error: cmd not match!"_s};
    row("absent", std::nullopt, 1, 0, noHeader);
    row("empty", "", 1, 0, noHeader);
    row("one byte", "00", 1, 0, noHeader);
    row("too short for a result", "00acff8100", 1, 0, noHeader);
    row("matching", "00acff81fffb00b00000000000000000", 0, 0xFFFB, {});
    row("no longer than its result", "00acff810102", 0, 0x0102, {});
    row("another command", "00acff82000100000000000000000000", 3, 0, mismatch);
    row("the command in the other byte order", "00ac81ff0001", 3, 0, mismatch);
}

void ReplyCheckTest::checksAReplyHeader()
{
    QFETCH(std::optional<QByteArray>, header);
    QFETCH(int, status);
    QFETCH(quint16, result);
    QFETCH(QStringList, synchronousErrors);
    const LogCollector log;

    int calls = 0;
    WTManager::wt_cmd(0xFF81, header, [&](int givenStatus, quint16 givenResult) {
        ++calls;
        QCOMPARE(givenStatus, status);
        QCOMPARE(givenResult, result);
        QCOMPARE(log.writtenSoFar().filter(u"error: "_s), synchronousErrors);
    });
    QCOMPARE(calls, 1);
    QCOMPARE(log.lines().constFirst(), u"info: send_cmd:0xFF81 header data:"_s + FormatArgument{header}.text());
    QCOMPARE(log.lines().contains(u"info: cb_success!"_s), status == 0);
}

void ReplyCheckTest::needsNoCallbackForAMatchingHeader()
{
    const LogCollector log;
    WTManager::wt_cmd(0xFF21, QByteArray::fromHex("00acff210000"), nullptr);
    QCOMPARE(log.lines(), (QStringList{u"info: send_cmd:0xFF21 header data:{length = 6, bytes = 0x00acff210000}"_s,
                                       u"info: recv_cmd:0xFF21 result:0x0"_s}));
}

void ReplyCheckTest::judgesAFinishedConfiguration_data()
{
    QTest::addColumn<bool>("hasData");
    QTest::addColumn<int>("errorCode");
    QTest::addColumn<int>("result");
    QTest::addColumn<ConfigurationOutcome>("outcome");

    using Status = WTPrinterStatus;
    const auto row = [](const char *name, bool hasData, int errorCode, int result, Status status, quint16 given) {
        QTest::newRow(name) << hasData << errorCode << result << ConfigurationOutcome{status, given};
    };
    row("joined", false, 0, 1, Status::Success, 1);
    row("refused", false, 0, 7, Status::NoHeader, 7);
    row("no matching header", false, 0, 0, Status::NoHeader, 0);
    row("unreachable", false, 31, 0, Status::LibraryError31, 31);
    row("unreachable after it said joined", false, 31, 1, Status::LibraryError31, 31);
    row("unreachable after it sent data", true, 31, 1, Status::Success, 1);
    row("timed out after it said joined", false, 32, 1, Status::Success, 1);
    row("timed out", false, 32, 0, Status::NoHeader, 0);
}

void ReplyCheckTest::judgesAFinishedConfiguration()
{
    QFETCH(bool, hasData);
    QFETCH(int, errorCode);
    QFETCH(int, result);
    QFETCH(ConfigurationOutcome, outcome);
    const auto error = errorCode ? std::optional{WTError{wtcErrorDomain, errorCode, {}}} : std::nullopt;
    QVERIFY(configurationOutcome(hasData, error, static_cast<quint16>(result)) == outcome);
}

void ReplyCheckTest::acceptsOnlyWholeHeadersOfTheCommand()
{
    const LogCollector log;
    const QByteArray whole = QByteArray::fromHex("00acff0f000101100000000000000000");
    for (int size = 0; size <= 40; ++size) {
        bool stop = false;
        const auto accepted = PrinterExchange::acceptedHeader(0xFF0F, whole.leftJustified(size, '\0', true), &stop);
        QCOMPARE(accepted.has_value(), size == kACLHeadSize);
        QCOMPARE(stop, size != kACLHeadSize);
    }
    QCOMPARE(log.lines(), QStringList{});

    bool stop = false;
    QVERIFY(!PrinterExchange::acceptedHeader(0xFF0F, std::nullopt, &stop));
    QVERIFY(!stop);
    QVERIFY(!PrinterExchange::acceptedHeader(0xFF80, whole, &stop));
    QVERIFY(stop);
    QCOMPARE(log.lines(), QStringList{u"warning: CMD not matched! msg:acl 失败，失败原因：cmd not matched! "
                                      "send:0xFF80, recv:0xFF0F"_s});
}

QTEST_APPLESS_MAIN(ReplyCheckTest)
#include "ReplyCheckTest.moc"
