#include "InfoList.h"
#include "Rows.h"
#include "TextFormat.h"
#include "WTSafeArray.h"
#include "isSafe.h"
#include "untrustedText.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

class TextTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formats()
    {
        QByteArray bytes;
        for (char value = 0; value < 25; ++value)
            bytes.append(value);
        constexpr quint64 all = ~quint64{0};
        eachRow(
            {
                {"texts", formatText("%@ and %s", u"a"_s, "ä"), u"a and ä"_s},
                {"absent text", formatText("[%@]", std::optional<QString>()), u"[(null)]"_s},
                {"missing argument", formatText("%@ %d", u"a"_s), u"a (null)"_s},
                {"numbers", formatText("%d %ld %u %hu %llu", -1, qint64{-2}, 3u, quint16{5}, all),
                 u"-1 -2 3 5 18446744073709551615"_s},
                {"hexadecimal", formatText("0x%X %04X %x", 0xFF21, 0x2A, 0xAB), u"0xFF21 002A ab"_s},
                {"negative as bits", formatText("%X %hu %lX", -1, -1, qint64{-1}),
                 u"FFFFFFFF 65535 FFFFFFFFFFFFFFFF"_s},
                {"zeros behind the sign", formatText("%04d %02d %04d", -5, -123, 5), u"-005 -123 0005"_s},
                {"right aligned", formatText("TID:%6@|", u"42"_s), u"TID:    42|"_s},
                {"per cent signs", formatText("100%% of %@%", u"a"_s), u"100% of a%"_s},
                {"argument with placeholders", formatText("%@ %@", u"%d"_s, u"b"_s), u"%d b"_s},
                {"cut short", formatText("a%0", 1), u"a%0"_s},
                {"bytes", formatText("%@", bytes.first(24)),
                 u"{length = 24, bytes = 0x000102030405060708090a0b0c0d0e0f1011121314151617}"_s},
                {"bytes without their middle", formatText("%@", bytes),
                 u"{length = 25, bytes = 0x000102030405060708090a0b0c0d0e0f ... 1112131415161718}"_s},
            },
            [](const QString &made, const QString &expected) { QCOMPARE(made, expected); });
    }

    void showsHiddenCharacters()
    {
        eachRow(
            {
                {"control characters", u"a\0\n\x1b\x7f\x85"_s, u"a\\u0000\\u000A\\u001B\\u007F\\u0085"_s, false},
                {"C1 alone, as in names that are no UTF-8", u"\x85"_s, u"\\u0085"_s, true},
                {"separators", u"a\u2028b\u2029"_s, u"a\\u2028b\\u2029"_s, true},
                {"direction marks", u"\u061c\u200e\u200f\u202a\u202e\u2066\u2069"_s,
                 u"\\u061C\\u200E\\u200F\\u202A\\u202E\\u2066\\u2069"_s, true},
            },
            [&](const QString &text, const QString &visible, bool sendable) {
                QCOMPARE(visibleText(text), visible);
                QCOMPARE(isSendable(text), sendable);
            });
    }

    void knowsUsableContent()
    {
        QVERIFY(isSafe(u" a\n"_s) && isSafe(QByteArray(1, ' ')) && isSafe(0) && isSafe(false));
        QVERIFY(!isSafe(u"   \n"_s) && !isSafe(QByteArray()) && !isSafe(std::optional(u" "_s)));
        QVERIFY(isSafe(QList<int>{0}) && isSafe(WTSafeArray<int>({0})) && isSafe(std::make_shared<int>(0)));
        QVERIFY(!isSafe(QList<int>()) && !isSafe(WTSafeArray<int>()) && !isSafe(std::shared_ptr<int>()));
        QJsonObject object{{u"blank"_s, u" "_s}};
        QVERIFY2(!isSafe(object[u"blank"_s]), "a reference into an object is what it refers to");
        QVERIFY(isSafe(QJsonValue(0)) && isSafe(QJsonValue(QJsonValue::Null)) && isSafe(QJsonValue(QJsonArray{0})));
        QVERIFY(!isSafe(QJsonValue(QJsonValue::Undefined)) && !isSafe(QJsonValue(QJsonObject())));
    }

    void readsTheInformationList()
    {
        const QTemporaryDir folder;
        InfoList::setResourceFolder(folder.path());
        QCOMPARE(InfoList::value(u"CFG"_s), std::nullopt);

        QFile file(folder.filePath(u"Info.json"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(R"({"CFG": "models.json", "Build": 12, "Empty": "", "List": []})");
        file.close();
        QCOMPARE(InfoList::value(u"CFG"_s), u"models.json"_s);
        QCOMPARE(InfoList::value(u"Build"_s), u"12"_s);
        QCOMPARE(InfoList::value(u"Empty"_s), u""_s);
        QCOMPARE(InfoList::value(u"List"_s), std::nullopt);
        QCOMPARE(InfoList::value(u"Vendor"_s), std::nullopt);
    }
};

QTEST_GUILESS_MAIN(TextTests)
#include "TextTests.moc"
