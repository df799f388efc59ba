#include "Rows.h"
#include "WTCommand.h"
#include "WiFiConfigurationPayload.h"

using namespace Qt::Literals::StringLiterals;

namespace
{

QByteArray bytes(const char *hex)
{
    return QByteArray::fromHex(hex);
}

QByteArray enveloped(const char *hex)
{
    return bytes("1b252d313233343558 40504a4c20454e544552204c414e47554147453d41434c0d0a") + bytes(hex) +
           bytes("1b252d313233343558");
}

} // namespace

/// Frames against bytes that were written down by hand from the layouts.
class CommandFrameTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void buildsFrames_data();
    void buildsFrames();
    void computesTheChecksumOverTheLengthModulo256();
    void encodesNameAndPassword_data();
    void encodesNameAndPassword();
};

void CommandFrameTests::buildsFrames_data()
{
    using C = WTCommand;
    const QByteArray none{};
    const QByteArray payload = bytes("0102");
    const QByteArray header = bytes("a1a2a3");
    const QByteArray huge(70000, 'x');
    const Rows<QByteArray, QByteArray> row{"built", "bytes"};
    row("short, no payload", C::ACLWithCMD(0xFF21), bytes("00acff21000000000000000000000000"));
    row("short, payload", C::ACLWithCMD(0xFF84, payload), bytes("00acff84000200000000000000000000 0102"));
    row("short, length cut", C::ACLWithCMD(0xFF80, huge), bytes("00acff80117000000000000000000000") + huge);
    row("long, absent payload", C::ACLWithCMD(0xFF21, {}, true), bytes("00acff210000000000000000 f8f2"));
    row("long, payload", C::ACLWithCMD(0xFF80, payload, true), bytes("00acff800000000200000000 0102 672a"));
    row("long, checksum not asked for", C::ACLWithCMD(0xFF21, none, false), bytes("00acff210000000000000000 f8f2"));
    row("header", C::ACLWithHeader(header, {}), bytes("a1a2a3"));
    row("header and payload", C::ACLWithHeader(header, payload), bytes("a1a2a3 0102"));
    row("header with checksum", C::ACLWithHeader(header, {}, true), bytes("a1a2a3 193b"));
    row("no header, no payload", C::ACLWithHeader({}, {}), none);

    row("envelope", C::PJLWithACLData(header), enveloped("a1a2a3"));
    row("envelope of nothing", C::PJLWithACLData({}), enveloped(""));
    row("envelope with encryption byte 0", C::PJLWithACLData(header, 0), enveloped("00 a1a2a3"));
    row("envelope without encryption byte", C::PJLWithACLData(header, 255), enveloped("a1a2a3"));
    row("command", C::PJLWithCMD(0xFF0F), enveloped("00acff0f000000000000000000000000"));
    row("command with payload", C::PJLWithCMD(0xFF84, payload), enveloped("00acff84000200000000000000000000 0102"));
    row("long command, not encrypted", C::PJLWithCMD(0xFF21, {}, 255), enveloped("00acff210000000000000000 f8f2"));
    row("long command, encrypted", C::PJLWithCMD(0xFF21, none, 7), enveloped("07 00acff210000000000000000 f8f2"));
    row("own header", C::PJLWithHeader(header, payload), enveloped("a1a2a3 0102"));
    row("own header, encrypted", C::PJLWithHeader(header, {}, 1), enveloped("01 a1a2a3 193b"));
}

void CommandFrameTests::buildsFrames()
{
    QFETCH(QByteArray, built);
    QFETCH(QByteArray, bytes);
    QCOMPARE(built.toHex(' '), bytes.toHex(' '));
}

void CommandFrameTests::computesTheChecksumOverTheLengthModulo256()
{
    const QByteArray catalogued("123456789");
    QCOMPARE(WTCommand::CRC16(catalogued), 0x4B37);
    QCOMPARE(WTCommand::CRC16({}), 0xFFFF);
    QCOMPARE(WTCommand::CRC16(QByteArray(256, 'x')), 0xFFFF);
    QCOMPARE(WTCommand::CRC16(catalogued.leftJustified(265, 'x')), 0x4B37);
}

void CommandFrameTests::encodesNameAndPassword_data()
{
    const auto payload = [](const QByteArray &name, const QByteArray &password) {
        return name.leftJustified(33, '\0') + '\5' + password.leftJustified(31 + 143, '\0');
    };
    const QString wide = u"密密密密密密密密密密"_s;
    const Rows<QString, QString, std::optional<QByteArray>> row{"ssid", "password", "payload"};
    row("plain", u"Harbour"_s, u"secret"_s, payload("Harbour", "secret"));
    row("open network", u"Harbour"_s, u""_s, payload("Harbour", ""));
    row("name of 40 bytes", QString(40, u'n'), u"p"_s, payload(QByteArray(32, 'n'), "p"));
    row("name cut inside a character", QString(31, u'n') + u"港"_s, u"p"_s, payload(QByteArray(31, 'n') + '\xE6', "p"));
    row("password that fills its field", u"n"_s, QString(31, u'p'), payload("n", QByteArray(31, 'p')));
    row("password of 31 bytes", u"n"_s, wide + u'x', payload("n", wide.toUtf8() + 'x'));
    row("password of 32 bytes", u"n"_s, QString(32, u'p'), std::nullopt);
    row("password of 33 bytes", u"n"_s, wide + u"密"_s, std::nullopt);
    row("name that ends the printer's job", u"\x1b%-12345X"_s, u"p"_s, std::nullopt);
}

void CommandFrameTests::encodesNameAndPassword()
{
    QFETCH(QString, ssid);
    QFETCH(QString, password);
    QTEST(WiFiConfigurationPayload::encode(ssid, password), "payload");
}

QTEST_APPLESS_MAIN(CommandFrameTests)
#include "CommandFrameTests.moc"
