#include "PrinterAddress.h"
#include "Rows.h"

using namespace Qt::Literals::StringLiterals;

namespace
{

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

class PrinterAddressTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsAddressesFromOtherTexts();
    void choosesTheAddressOfAReply_data();
    void choosesTheAddressOfAReply();
};

void PrinterAddressTests::tellsAddressesFromOtherTexts()
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

void PrinterAddressTests::choosesTheAddressOfAReply_data()
{
    const QByteArray v4{"10.0.0.7"};
    const QByteArray v6{"fe80::6"};
    const QByteArray second{"2001:db8::2"};
    const Rows<QByteArray, std::optional<QString>> row{"data", "address"};
    row("all three", replyData(176, v4, v6, second), u"10.0.0.7"_s);
    row("IPv6 and second", replyData(176, "", v6, second), u"fe80::6"_s);
    row("second only", replyData(176, "", "none", second), u"2001:db8::2"_s);
    row("an IPv6 address in the IPv4 field", replyData(176, "fe80::4", v6), u"fe80::6"_s);
    row("an IPv4 address in the IPv6 field", replyData(176, "", v4), std::nullopt);
    row("none", replyData(176, "DHCP failed"), std::nullopt);
    row("all zero address", replyData(176, "0.0.0.0", v6), u"0.0.0.0"_s);
    row("least data", replyData(16, v4), u"10.0.0.7"_s);
    row("IPv4 field without its zero", "255.255.255.2551"_ba, std::nullopt);
    row("IPv4 field filled to the end", "192.168.100.200\0"_ba, u"192.168.100.200"_s);
    row("text behind the zero", replyData(176, "10.0.0.7\0.8"_ba), u"10.0.0.7"_s);
    row("IPv4 field no UTF-8", replyData(176, "\xFF\xFE"_ba, v6), u"fe80::6"_s);
    row("64 bytes, IPv6 begun", replyData(64, "", v6), std::nullopt);
    row("65 bytes, IPv6 cut", replyData(65, "", v6), std::nullopt);
    row("111 bytes, IPv6 one byte short", replyData(111, "", v6), std::nullopt);
    row("111 bytes, IPv4", replyData(111, v4, v6), u"10.0.0.7"_s);
    row("112 bytes, IPv6 whole", replyData(112, "", v6), u"fe80::6"_s);
    row("175 bytes, second one byte short", replyData(175, "", "", second), std::nullopt);
    row("longer than all fields", replyData(510, "", "", second), u"2001:db8::2"_s);
}

void PrinterAddressTests::choosesTheAddressOfAReply()
{
    QFETCH(QByteArray, data);
    QTEST(chooseAddress(addressCandidates(data)), "address");
}

QTEST_APPLESS_MAIN(PrinterAddressTests)
#include "PrinterAddressTests.moc"
