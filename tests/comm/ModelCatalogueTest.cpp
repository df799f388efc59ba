#include "ModelCatalogue.h"
#include "JsonInteger.h"
#include "ResourceFolder.h"

#include <QJsonDocument>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class ModelCatalogueTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answersByThreeDifferentRules_data();
    void answersByThreeDifferentRules();
    void readsWhatItCan_data();
    void readsWhatItCan();
    void readsIntegersLeniently_data();
    void readsIntegersLeniently();

private:
    ResourceFolder m_resources;
};

void ModelCatalogueTest::answersByThreeDifferentRules_data()
{
    QTest::addColumn<QByteArray>("entries");
    QTest::addColumn<QString>("printerType");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<bool>("wifi");
    QTest::addColumn<bool>("oldAcl");
    QTest::addColumn<std::optional<qint64>>("wifiCode");

    using Code = std::optional<qint64>;
    const QByteArray plain = R"([{"device_name": "QZ100", "supportWifi": 1, "isOldACL": 1}])";
    const auto row = [](const char *name, const QByteArray &entries, const QString &type, bool valid, bool wifi,
                        bool oldAcl,
                        Code code) { QTest::newRow(name) << entries << type << valid << wifi << oldAcl << code; };

    row("an empty catalogue permits all", "[]", u"QZ100"_s, true, true, true, {});
    row("an empty catalogue permits nothing at all", "[]", u""_s, true, true, true, {});
    row("the model", plain, u"QZ100"_s, true, true, true, 1);
    row("another model", plain, u"QZ200"_s, false, false, false, {});
    row("empty", plain, u""_s, false, false, false, {});
    row("white space", plain, u" \t\n"_s, false, false, false, {});
    row("a longer type in another case", plain, u"qz100nw"_s, true, false, false, {});
    row("a part of the name", plain, u"Z100"_s, true, false, false, {});
    row("the same designation in a longer type", plain, u"Quillmark QZ100 series"_s, true, true, true, {});
    row("the same designation in a longer name", R"([{"device_name": "Quillmark QZ100", "supportWifi": 1}])",
        u"QZ100"_s, true, true, false, {});
    row("no Wi-Fi", R"([{"device_name": "QZ100", "supportWifi": 0}])", u"QZ100"_s, true, false, false, 0);
    row("Wi-Fi not known", R"([{"device_name": "QZ100", "supportWifi": -1}])", u"QZ100"_s, true, true, false, -1);
    row("fields missing", R"([{"device_name": "QZ100"}])", u"QZ100"_s, true, false, false, 0);
    row("dialect null", R"([{"device_name": "QZ100", "supportWifi": 1, "isOldACL": null}])", u"QZ100"_s, true, true,
        false, 1);
    row("dialect blank", R"([{"device_name": "QZ100", "supportWifi": 1, "isOldACL": " "}])", u"QZ100"_s, true, true,
        false, 1);
    row("values as text", R"([{"device_name": "QZ100", "supportWifi": "2", "isOldACL": "1"}])", u"QZ100"_s, true, true,
        true, 2);
    row("values beyond 32 bits", R"([{"device_name": "QZ100", "supportWifi": 4294967296, "isOldACL": 4294967296}])",
        u"QZ100"_s, true, true, false, 4294967296);
    row("the first of two entries counts",
        R"([{"device_name": "QZ100", "supportWifi": 0}, {"device_name": "QZ100", "supportWifi": 1, "isOldACL": 1}])",
        u"QZ100"_s, true, false, false, 0);
    row("the last of two keys counts", R"([{"device_name": "QZ100", "supportWifi": 0, "supportWifi": 1}])", u"QZ100"_s,
        true, true, false, 1);
    row("names that are no text never match",
        R"([5, null, "QZ100", [], {}, {"device_name": 100}, {"device_name": ""}, {"device_name": " "}])", u"QZ100"_s,
        false, false, false, {});
}

void ModelCatalogueTest::answersByThreeDifferentRules()
{
    QFETCH(QByteArray, entries);
    QFETCH(QString, printerType);
    const ModelCatalogue catalogue{QJsonDocument::fromJson(entries).array()};
    QTEST(catalogue.isVaildFile(printerType), "valid");
    QTEST(catalogue.isWifiPrinter(printerType), "wifi");
    QTEST(catalogue.oldAclPrinter(printerType), "oldAcl");
    const auto model = catalogue.modelNamed(printerType);
    QTEST(model ? std::optional{model->wifiCode} : std::nullopt, "wifiCode");
}

void ModelCatalogueTest::readsWhatItCan_data()
{
    QTest::addColumn<std::optional<QByteArray>>("file");
    QTest::addColumn<int>("error");

    using File = std::optional<QByteArray>;
    const auto row = [](const char *name, const File &file, int error) { QTest::newRow(name) << file << error; };
    const auto fails = [&](const char *name, const File &file, CatalogueErrorCode code) {
        row(name, file, static_cast<int>(code));
    };
    QByteArray garbage(1 << 20, '\0');
    for (qsizetype i = 0; i < garbage.size(); ++i)
        garbage[i] = static_cast<char>(i * 31 + (i >> 8));

    row("one model", R"({"printer_info": [{"device_name": "QZ100"}], "other": 1})", 0);
    row("no models", R"({"printer_info": []})", 0);
    fails("missing", std::nullopt, CatalogueErrorCode::Unreadable);
    fails("empty", "", CatalogueErrorCode::NotJson);
    fails("no JSON", "printer_info: QZ100", CatalogueErrorCode::NotJson);
    fails("cut short", R"({"printer_info": [{"device_name": "QZ1)", CatalogueErrorCode::NotJson);
    fails("a megabyte of garbage", garbage, CatalogueErrorCode::NotJson);
    fails("a megabyte of open brackets", QByteArray(1 << 20, '['), CatalogueErrorCode::NotJson);
    fails("an array", R"([{"device_name": "QZ100"}])", CatalogueErrorCode::WrongShape);
    fails("no such key", R"({"printers": []})", CatalogueErrorCode::WrongShape);
    fails("models as an object", R"({"printer_info": {"device_name": "QZ100"}})", CatalogueErrorCode::WrongShape);
}

void ModelCatalogueTest::readsWhatItCan()
{
    QFETCH(std::optional<QByteArray>, file);
    QFETCH(int, error);
    m_resources.removeCatalogue();
    if (file)
        m_resources.writeCatalogue(*file);

    const auto catalogue = ModelCatalogue::readConfigured();
    QCOMPARE(catalogue ? 0 : catalogue.error().code, error);
    if (!catalogue)
        QVERIFY2(catalogue.error().message.contains(m_resources.cataloguePath()), "the message names the file");
}

void ModelCatalogueTest::readsIntegersLeniently_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<qint64>("integer");
    const auto row = [](const QByteArray &json, qint64 integer) { QTest::newRow(json) << json << integer; };
    row("1", 1);
    row("-1.9", -1);
    row("true", 1);
    row("false", 0);
    row("null", 0);
    row("[1]", 0);
    row("{}", 0);
    row("\" 12abc\"", 12);
    row("\"+3\"", 3);
    row("\"-3.7\"", -3);
    row("\"+-3\"", 0);
    row("\"abc\"", 0);
    row("9223372036854775807", std::numeric_limits<qint64>::max());
    row("1e300", std::numeric_limits<qint64>::max());
    row("-1e300", std::numeric_limits<qint64>::min());
    row("\"99999999999999999999\"", std::numeric_limits<qint64>::max());
    row("\"-99999999999999999999\"", std::numeric_limits<qint64>::min());
}

void ModelCatalogueTest::readsIntegersLeniently()
{
    QFETCH(QByteArray, json);
    const QJsonArray array = QJsonDocument::fromJson('[' + json + ']').array();
    QTEST(jsonInteger(array.first()), "integer");
}

QTEST_APPLESS_MAIN(ModelCatalogueTest)
#include "ModelCatalogueTest.moc"
