#include "ConfigurationOutcome.h"
#include "PrinterAddress.h"
#include "PrinterExchange.h"
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

/// Reply data of `size` bytes with these fields, as far as they fit in.
QByteArray replyData(qsizetype size, const QByteArray &ipv4, const QByteArray &ipv6 = {},
                     const QByteArray &unstatus = {})
{
    QByteArray data(176, '\0');
    data.replace(0, ipv4.size(), ipv4);
    data.replace(48, ipv6.size(), ipv6);
    data.replace(112, unstatus.size(), unstatus);
    return data.leftJustified(size, '\0', true);
}

} // namespace

/// Bytes that are sent, and what is read from those that come, against bytes written down by hand.
class FrameTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void buildsFrames()
    {
        using C = WTCommand;
        const QByteArray none{};
        const QByteArray payload = bytes("0102");
        const QByteArray header = bytes("a1a2a3");
        const QByteArray huge(70000, 'x');
        eachRow(
            {
                {"short, no payload", C::ACLWithCMD(0xFF21), bytes("00acff21000000000000000000000000")},
                {"short, length cut", C::ACLWithCMD(0xFF80, huge), bytes("00acff80117000000000000000000000") + huge},
                {"long, payload", C::ACLWithCMD(0xFF80, payload, true), bytes("00acff800000000200000000 0102 672a")},
                {"header with checksum", C::ACLWithHeader(header, {}, true), bytes("a1a2a3 193b")},
                {"envelope", C::PJLWithACLData(header), enveloped("a1a2a3")},
                {"command", C::PJLWithCMD(0xFF0F), enveloped("00acff0f000000000000000000000000")},
                {"long command, encrypted", C::PJLWithCMD(0xFF21, none, 7),
                 enveloped("07 00acff210000000000000000 f8f2")},
            },
            [&](const QByteArray &built, const QByteArray &bytes) { QCOMPARE(built.toHex(' '), bytes.toHex(' ')); });
    }

    void computesTheChecksumOverTheLengthModulo256()
    {
        const QByteArray catalogued("123456789");
        QCOMPARE(WTCommand::CRC16(catalogued), 0x4B37);
        QCOMPARE(WTCommand::CRC16({}), 0xFFFF);
        QCOMPARE(WTCommand::CRC16(QByteArray(256, 'x')), 0xFFFF);
        QCOMPARE(WTCommand::CRC16(catalogued.leftJustified(265, 'x')), 0x4B37);
    }

    void encodesNameAndPassword()
    {
        const auto payload = [](const QByteArray &name, const QByteArray &password) {
            return name.leftJustified(33, '\0') + '\5' + password.leftJustified(31 + 143, '\0');
        };
        const QString wide = u"密密密密密密密密密密"_s;
        eachRow(
            {
                {"name of 40 bytes", QString(40, u'n'), u"p"_s, payload(QByteArray(32, 'n'), "p")},
                {"name cut inside a character", QString(31, u'n') + u"港"_s, u"p"_s,
                 payload(QByteArray(31, 'n') + '\xE6', "p")},
                {"password that fills its field", u"n"_s, QString(31, u'p'), payload("n", QByteArray(31, 'p'))},
                {"password of 33 bytes", u"n"_s, wide + u"密"_s, std::nullopt},
                {"name that ends the printer's job", u"\x1b%-12345X"_s, u"p"_s, std::nullopt},
                {"password that ends the printer's job", u"n"_s, u"\x1b%-12345X"_s, std::nullopt},
            },
            [&](const QString &ssid, const QString &password, const std::optional<QByteArray> &encoded) {
                const auto sent = WiFiConfigurationPayload::encode(ssid, password);
                QCOMPARE(sent ? std::optional(sent.value()) : std::nullopt, encoded);
            });
    }

    void tellsAddressesFromOtherTexts()
    {
        for (const char *text : {"192.168.1.77", "0.0.0.0", "255.255.255.255", "01.02.003.4"})
            QVERIFY2(isIPv4Address(QString::fromLatin1(text)) && !isIPv6Address(QString::fromLatin1(text)), text);
        for (const char *text :
             {"fe80::1", "::1", "::", "1::", "2001:db8:0:0:0:0:0:1", "2001:DB8::8:800:200C:417A", "1:2:3:4:5:6:7:8",
              "1:2:3:4:5:6::", "1:2:3:4:5::8", "::ffff:192.0.2.1", "1:2:3:4:5:6:192.0.2.1", "1::3:192.0.2.1"})
            QVERIFY2(isIPv6Address(QString::fromLatin1(text)) && !isIPv4Address(QString::fromLatin1(text)), text);
        for (const char *text : {"", " ", "256.1.1.1", "1.2.3", "1.2.3.4.5", "1.2.3.4 ", " 1.2.3.4", "1.2.3.4\n",
                                 "x1.2.3.4", "1,2,3,4", "fe80::1%wlan0", "fe80::1\n", "12345::", "1:2:3:4:5:6:7",
                                 "1:2:3:4:5:6:7:8:9", "1::2::3", ":", "g::1", "١.٢.٣.٤"})
            QVERIFY2(!isIPv4Address(QString::fromUtf8(text)) && !isIPv6Address(QString::fromUtf8(text)), text);
    }

    void choosesTheAddressOfAReply()
    {
        const QByteArray v4{"10.0.0.7"};
        const QByteArray v6{"fe80::6"};
        const QByteArray second{"2001:db8::2"};
        eachRow(
            {
                {"second only", replyData(176, "", "none", second), u"2001:db8::2"_s},
                {"an IPv6 address in the IPv4 field", replyData(176, "fe80::4", v6), u"fe80::6"_s},
                {"all zero address", replyData(176, "0.0.0.0", v6), u"0.0.0.0"_s},
                {"IPv4 field without its zero", "255.255.255.2551"_ba, std::nullopt},
                {"IPv4 field filled to the end", "192.168.100.200\0"_ba, u"192.168.100.200"_s},
                {"65 bytes, IPv6 cut", replyData(65, "", v6), std::nullopt},
                {"111 bytes, IPv6 one byte short", replyData(111, "", v6), std::nullopt},
                {"112 bytes, IPv6 whole", replyData(112, "", v6), u"fe80::6"_s},
                {"175 bytes, second one byte short", replyData(175, "", "", second), std::nullopt},
            },
            [&](const QByteArray &data, const std::optional<QString> &address) {
                QCOMPARE(chooseAddress(addressCandidates(data)), address);
            });
    }

    void judgesAFinishedConfiguration()
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
};

QTEST_APPLESS_MAIN(FrameTests)
#include "FrameTests.moc"
