#include "JsonInteger.h"
#include "ModelCatalogue.h"
#include "ResourceFolder.h"
#include "Rows.h"

#include <QJsonDocument>
#include <limits>

using namespace Qt::Literals::StringLiterals;

class ModelCatalogueTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answersByThreeDifferentRules_data();
    void answersByThreeDifferentRules();
    void readsWhatItCan_data();
    void readsWhatItCan();
    void readsIntegersLeniently();

private:
    ResourceFolder m_resources;
};

void ModelCatalogueTests::answersByThreeDifferentRules_data()
{
    const auto model = [](const QByteArray &fields) { return R"({"device_name": "QZ100", )" + fields + '}'; };
    const QByteArray plain = model(R"("supportWifi": 1, "isOldACL": 1)");
    const QByteArray unnamed = R"(5, null, "QZ100", [], {}, {"device_name": 100}, {"device_name": " "})";
    const QString name = u"QZ100"_s;
    const Rows<QByteArray, QString, bool, bool, bool, std::optional<qint64>> row{"entries", "printerType", "valid",
                                                                                 "wifi",    "oldAcl",      "wifiCode"};
    row("an empty catalogue permits all", "", name, true, true, true, {});
    row("the model", plain, name, true, true, true, 1);
    row("another model", plain, u"QZ200"_s, false, false, false, {});
    row("white space", plain, u" \t\n"_s, false, false, false, {});
    row("a longer type in another case", plain, u"qz100nw"_s, true, false, false, {});
    row("a part of the name", plain, u"Z100"_s, true, false, false, {});
    row("the same designation in a longer type", plain, u"Quillmark QZ100 series"_s, true, true, true, {});
    row("the same designation in a longer name", R"({"device_name": "Quillmark QZ100", "supportWifi": 1})", name, true,
        true, false, {});
    row("no Wi-Fi", model(R"("supportWifi": 0)"), name, true, false, false, 0);
    row("Wi-Fi not known", model(R"("supportWifi": -1)"), name, true, true, false, -1);
    row("fields missing", model(R"("other": 1)"), name, true, false, false, 0);
    row("dialect null", model(R"("supportWifi": 1, "isOldACL": null)"), name, true, true, false, 1);
    row("values as text", model(R"("supportWifi": "2", "isOldACL": "1")"), name, true, true, true, 2);
    row("beyond 32 bits", model(R"("supportWifi": 4294967296, "isOldACL": 4294967296)"), name, true, true, false,
        4294967296);
    row("the first of two entries counts", model(R"("supportWifi": 0)") + ',' + plain, name, true, false, false, 0);
    row("the last of two keys counts", model(R"("supportWifi": 0, "supportWifi": 1)"), name, true, true, false, 1);
    row("names that are no text never match", unnamed, name, false, false, false, {});
}

void ModelCatalogueTests::answersByThreeDifferentRules()
{
    QFETCH(QByteArray, entries);
    QFETCH(QString, printerType);
    const ModelCatalogue catalogue{QJsonDocument::fromJson('[' + entries + ']').array()};
    QTEST(catalogue.isVaildFile(printerType), "valid");
    QTEST(catalogue.isWifiPrinter(printerType), "wifi");
    QTEST(catalogue.oldAclPrinter(printerType), "oldAcl");
    const auto model = catalogue.modelNamed(printerType);
    QTEST(model ? std::optional{model->wifiCode} : std::nullopt, "wifiCode");
}

void ModelCatalogueTests::readsWhatItCan_data()
{
    const Rows<std::optional<QByteArray>, CatalogueErrorCode> row{"file", "error"};
    row("one model", R"({"printer_info": [{"device_name": "QZ100"}], "other": 1})", {});
    row("no models", R"({"printer_info": []})", {});
    row("missing", std::nullopt, CatalogueErrorCode::Unreadable);
    row("empty", "", CatalogueErrorCode::NotJson);
    row("cut short", R"({"printer_info": [{"device_name": "QZ1)", CatalogueErrorCode::NotJson);
    row("a megabyte of open brackets", QByteArray(1 << 20, '['), CatalogueErrorCode::NotJson);
    row("an array", R"([{"device_name": "QZ100"}])", CatalogueErrorCode::WrongShape);
    row("no such key", R"({"printers": []})", CatalogueErrorCode::WrongShape);
    row("models as an object", R"({"printer_info": {"device_name": "QZ100"}})", CatalogueErrorCode::WrongShape);
}

void ModelCatalogueTests::readsWhatItCan()
{
    QFETCH(std::optional<QByteArray>, file);
    QFETCH(CatalogueErrorCode, error);
    m_resources.removeCatalogue();
    if (file)
        m_resources.writeCatalogue(*file);

    const auto catalogue = ModelCatalogue::readConfigured();
    QCOMPARE(catalogue ? 0 : catalogue.error().code, static_cast<int>(error));
    if (!catalogue)
        QVERIFY2(catalogue.error().message.contains(m_resources.cataloguePath()), "the message names the file");
}

void ModelCatalogueTests::readsIntegersLeniently()
{
    using Limits = std::numeric_limits<qint64>;
    const auto integer = [](const QByteArray &json) {
        return jsonInteger(QJsonDocument::fromJson('[' + json + ']').array().first());
    };
    QCOMPARE(integer("-1.9"), -1);
    QCOMPARE(integer("true"), 1);
    QCOMPARE(integer("null"), 0);
    QCOMPARE(integer("[1]"), 0);
    QCOMPARE(integer("\" 12abc\""), 12);
    QCOMPARE(integer("\"+3\""), 3);
    QCOMPARE(integer("\"-3.7\""), -3);
    QCOMPARE(integer("\"+-3\""), 0);
    QCOMPARE(integer("9223372036854775807"), Limits::max());
    QCOMPARE(integer("1e300"), Limits::max());
    QCOMPARE(integer("-1e300"), Limits::min());
    QCOMPARE(integer("\"99999999999999999999\""), Limits::max());
    QCOMPARE(integer("\"-99999999999999999999\""), Limits::min());
}

QTEST_APPLESS_MAIN(ModelCatalogueTests)
#include "ModelCatalogueTests.moc"
