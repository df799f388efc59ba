#include "PrinterAddress.h"

#include <QRandomGenerator>
#include <QTest>

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

class PrinterAddressTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsAddressesFromOtherTexts_data();
    void tellsAddressesFromOtherTexts();
    void choosesTheAddressOfAReply_data();
    void choosesTheAddressOfAReply();
    void survivesAnyReply();
};

void PrinterAddressTest::tellsAddressesFromOtherTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isIPv4");
    QTest::addColumn<bool>("isIPv6");

    for (const char *text : {"192.168.1.77", "0.0.0.0", "255.255.255.255", "01.02.003.4"})
        QTest::newRow(text) << QString::fromLatin1(text) << true << false;
    for (const char *text :
         {"fe80::1", "::1", "::", "1::", "2001:db8:0:0:0:0:0:1", "2001:DB8::8:800:200C:417A", "1:2:3:4:5:6:7:8",
          "1:2:3:4:5:6::", "1:2:3:4:5::8", "::ffff:192.0.2.1", "1:2:3:4:5:6:192.0.2.1", "1::3:192.0.2.1"})
        QTest::newRow(text) << QString::fromLatin1(text) << false << true;
    for (const char *text :
         {"", " ", "256.1.1.1", "1.2.3", "1.2.3.4.5", "1.2.3.4 ", " 1.2.3.4", "1.2.3.4\n", "x1.2.3.4", "1,2,3,4",
          "fe80::1%wlan0", "fe80::1\n", "12345::", "1:2:3:4:5:6:7", "1:2:3:4:5:6:7:8:9", "1::2::3", ":", "g::1"})
        QTest::newRow(QByteArray{text}.replace('\n', "(line end)").constData())
            << QString::fromLatin1(text) << false << false;
    QTest::newRow("digits of another script") << u"١.٢.٣.٤"_s << false << false;
}

void PrinterAddressTest::tellsAddressesFromOtherTexts()
{
    QFETCH(QString, text);
    QTEST(isIPv4Address(text), "isIPv4");
    QTEST(isIPv6Address(text), "isIPv6");
}

void PrinterAddressTest::choosesTheAddressOfAReply_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<std::optional<QString>>("address");

    const auto row = [](const char *name, const QByteArray &data, const std::optional<QString> &address) {
        QTest::newRow(name) << data << address;
    };
    const QByteArray v4{"10.0.0.7"};
    const QByteArray v6{"fe80::6"};
    const QByteArray second{"2001:db8::2"};
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
    row("65 bytes, IPv4", replyData(65, v4, v6), u"10.0.0.7"_s);
    row("111 bytes, IPv6 one byte short", replyData(111, "", v6), std::nullopt);
    row("111 bytes, IPv4", replyData(111, v4, v6), u"10.0.0.7"_s);
    row("112 bytes, IPv6 whole", replyData(112, "", v6), u"fe80::6"_s);
    row("175 bytes, second one byte short", replyData(175, "", "", second), std::nullopt);
    row("longer than all fields", replyData(510, "", "", second), u"2001:db8::2"_s);
}

void PrinterAddressTest::choosesTheAddressOfAReply()
{
    QFETCH(QByteArray, data);
    QTEST(chooseAddress(addressCandidates(data)), "address");
}

void PrinterAddressTest::survivesAnyReply()
{
    const quint32 seed = QRandomGenerator::global()->generate();
    QRandomGenerator random{seed};
    const QByteArray alphabet{"0123456789abcdef:.\0\xff"_ba};
    for (int size = 0; size <= 510; ++size) {
        QByteArray data(size, '\0');
        for (char &byte : data)
            byte = alphabet[random.bounded(alphabet.size())];
        const auto address = chooseAddress(addressCandidates(data));
        const QByteArray detail = "seed " + QByteArray::number(seed) + ", data " + data.toHex();
        QVERIFY2(!address || isIPv4Address(*address) || isIPv6Address(*address), detail.constData());
    }
}

QTEST_APPLESS_MAIN(PrinterAddressTest)
#include "PrinterAddressTest.moc"
