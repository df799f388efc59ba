#include "WTCommand.h"
#include "WifiConfigurationPayload.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace
{

const QByteArray exitLanguage = QByteArray::fromHex("1b252d313233343558");
const QByteArray enterLanguage = QByteArray::fromHex("40504a4c20454e544552204c414e47554147453d41434c0d0a");

QByteArray enveloped(const QByteArray &hex)
{
    return exitLanguage + enterLanguage + QByteArray::fromHex(hex) + exitLanguage;
}

} // namespace

/// Frames against bytes that were written down by hand from the layouts.
class CommandFrameTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void buildsFrames_data();
    void buildsFrames();
    void truncatesTheLengthOfAHugePayloadOnly();
    void computesTheChecksumOverTheLengthModulo256_data();
    void computesTheChecksumOverTheLengthModulo256();
    void encodesNameAndPassword_data();
    void encodesNameAndPassword();
    void refusesAPasswordThatDoesNotFit_data();
    void refusesAPasswordThatDoesNotFit();
};

void CommandFrameTest::buildsFrames_data()
{
    QTest::addColumn<QByteArray>("built");
    QTest::addColumn<QByteArray>("bytes");

    using C = WTCommand;
    const QByteArray none{};
    const QByteArray payload = QByteArray::fromHex("0102");
    const QByteArray header = QByteArray::fromHex("a1a2a3");
    const auto row = [](const char *name, const QByteArray &built, const QByteArray &hex) {
        QTest::newRow(name) << built << QByteArray::fromHex(hex);
    };
    const auto pjlRow = [](const char *name, const QByteArray &built, const QByteArray &hex) {
        QTest::newRow(name) << built << enveloped(hex);
    };

    row("short, no payload", C::ACLWithCMD(0xFF21), "00acff21000000000000000000000000");
    row("short, absent payload", C::ACLWithCMD(0xFF21, std::nullopt), "00acff21000000000000000000000000");
    row("short, empty payload", C::ACLWithCMD(0xFF21, none), "00acff21000000000000000000000000");
    row("short, payload", C::ACLWithCMD(0xFF84, payload),
        "00acff84000200000000000000000000"
        "0102");
    row("long, absent payload", C::ACLWithCMD(0xFF21, std::nullopt, true),
        "00acff210000000000000000"
        "f8f2");
    row("long, payload", C::ACLWithCMD(0xFF80, payload, true),
        "00acff800000000200000000"
        "0102"
        "672a");
    row("long, checksum not asked for", C::ACLWithCMD(0xFF21, none, false),
        "00acff210000000000000000"
        "f8f2");
    row("header", C::ACLWithHeader(header, std::nullopt), "a1a2a3");
    row("header and payload", C::ACLWithHeader(header, payload),
        "a1a2a3"
        "0102");
    row("header with checksum", C::ACLWithHeader(header, std::nullopt, true),
        "a1a2a3"
        "193b");
    row("no header, no payload", C::ACLWithHeader(std::nullopt, std::nullopt), "");

    pjlRow("envelope", C::PJLWithACLData(header), "a1a2a3");
    pjlRow("envelope of nothing", C::PJLWithACLData(std::nullopt), "");
    pjlRow("envelope with encryption byte 0", C::PJLWithACLData(header, 0),
           "00"
           "a1a2a3");
    pjlRow("envelope with encryption byte 254", C::PJLWithACLData(header, 254),
           "fe"
           "a1a2a3");
    pjlRow("envelope without encryption byte", C::PJLWithACLData(header, 255), "a1a2a3");
    pjlRow("command", C::PJLWithCMD(0xFF0F), "00acff0f000000000000000000000000");
    pjlRow("command with payload", C::PJLWithCMD(0xFF84, payload),
           "00acff84000200000000000000000000"
           "0102");
    pjlRow("long command, not encrypted", C::PJLWithCMD(0xFF21, std::nullopt, 255),
           "00acff210000000000000000"
           "f8f2");
    pjlRow("long command, encrypted", C::PJLWithCMD(0xFF21, none, 7),
           "07"
           "00acff210000000000000000"
           "f8f2");
    pjlRow("own header", C::PJLWithHeader(header, payload),
           "a1a2a3"
           "0102");
    pjlRow("own header, not encrypted", C::PJLWithHeader(header, std::nullopt, 255), "a1a2a3");
    pjlRow("own header, encrypted", C::PJLWithHeader(header, std::nullopt, 1),
           "01"
           "a1a2a3"
           "193b");
}

void CommandFrameTest::buildsFrames()
{
    QFETCH(QByteArray, built);
    QFETCH(QByteArray, bytes);
    QCOMPARE(built.toHex(' '), bytes.toHex(' '));
}

void CommandFrameTest::truncatesTheLengthOfAHugePayloadOnly()
{
    const QByteArray payload(70000, 'x');
    const QByteArray frame = WTCommand::ACLWithCMD(0xFF80, payload);
    QCOMPARE(frame.first(16), QByteArray::fromHex("00acff80117000000000000000000000"));
    QVERIFY(frame.sliced(16) == payload);
}

void CommandFrameTest::computesTheChecksumOverTheLengthModulo256_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<quint16>("checksum");
    QTest::newRow("the catalogued check value") << QByteArray{"123456789"} << quint16{0x4B37};
    QTest::newRow("empty") << QByteArray{} << quint16{0xFFFF};
    QTest::newRow("256 bytes") << QByteArray(256, 'x') << quint16{0xFFFF};
    QTest::newRow("265 bytes count as 9") << QByteArray{"123456789"}.leftJustified(265, 'x') << quint16{0x4B37};
}

void CommandFrameTest::computesTheChecksumOverTheLengthModulo256()
{
    QFETCH(QByteArray, bytes);
    QFETCH(quint16, checksum);
    QCOMPARE(WTCommand::CRC16(bytes), checksum);
}

void CommandFrameTest::encodesNameAndPassword_data()
{
    QTest::addColumn<QString>("ssid");
    QTest::addColumn<QString>("password");
    QTest::addColumn<QByteArray>("nameField");
    QTest::addColumn<QByteArray>("passwordField");

    const auto field = [](QByteArray text, int size) { return text.leftJustified(size, '\0'); };
    QTest::newRow("plain") << u"Harbour"_s << u"secret"_s << field("Harbour", 33) << field("secret", 31);
    QTest::newRow("open network") << u"Harbour"_s << QString{} << field("Harbour", 33) << field("", 31);
    QTest::newRow("name of 40 bytes") << QString(40, u'n') << u"p"_s << field(QByteArray(32, 'n'), 33)
                                      << field("p", 31);
    QTest::newRow("name cut inside a character")
        << QString(16, u'n') + u"港港港港港港"_s << u"p"_s
        << field(QByteArray(16, 'n') + QByteArray::fromHex("e6b8afe6b8afe6b8afe6b8afe6b8afe6"), 33) << field("p", 31);
    QTest::newRow("password that fills its field")
        << u"n"_s << QString(31, u'p') << field("n", 33) << QByteArray(31, 'p');
    QTest::newRow("password of 31 bytes in 11 characters")
        << u"n"_s << u"密密密密密密密密密密x"_s << field("n", 33) << u"密密密密密密密密密密x"_s.toUtf8();
}

void CommandFrameTest::encodesNameAndPassword()
{
    QFETCH(QString, ssid);
    QFETCH(QString, password);
    QFETCH(QByteArray, nameField);
    QFETCH(QByteArray, passwordField);
    const QByteArray payload = WifiConfigurationPayload::encode(ssid, password).value_or(QByteArray{});
    QCOMPARE(payload.toHex(), (nameField + '\5' + passwordField + QByteArray(143, '\0')).toHex());
}

void CommandFrameTest::refusesAPasswordThatDoesNotFit_data()
{
    QTest::addColumn<QString>("password");
    QTest::newRow("32 bytes") << QString(32, u'p');
    QTest::newRow("33 bytes in 11 characters") << QString(11, u'密');
}

void CommandFrameTest::refusesAPasswordThatDoesNotFit()
{
    QFETCH(QString, password);
    QVERIFY(!WifiConfigurationPayload::encode(u"n"_s, password));
}

QTEST_APPLESS_MAIN(CommandFrameTest)
#include "CommandFrameTest.moc"
