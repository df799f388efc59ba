#include "JsonInteger.h"
#include "LogCollector.h"
#include "ModelCatalogue.h"
#include "ResourceFolder.h"
#include "Rows.h"
#include "VirtualTime.h"
#include "WTManager.h"

#include <QJsonDocument>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace
{
WTCDevice device(const QString &type, quint32 locationID)
{
    return {.printerType = type,
            .serialNumber = u"QM1"_s,
            .PID = 0xFFFE,
            .VID = 0x6A1B,
            .locationID = locationID,
            .manufacturer = u"Quillmark"_s,
            .URI = u"usb://Quillmark/"_s + type};
}

constexpr auto catalogue = R"({"printer_info": [
    {"device_name": "QZ100", "supportWifi": -1, "isOldACL": 1},
    {"device_name": "QZ200", "supportWifi": 0},
    {"device_name": "Quillmark QZ300", "supportWifi": 1, "isOldACL": 1}]})";

} // namespace

/// The catalogue, and the manager's lists and records, without a bus.
class PrinterRecordTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answersByThreeDifferentRules()
    {
        const auto model = [](const QByteArray &fields) { return R"({"device_name": "QZ100", )" + fields + '}'; };
        const QByteArray plain = model(R"("supportWifi": 1, "isOldACL": 1)");
        const QByteArray unnamed = R"(5, null, "QZ100", [], {}, {"device_name": 100}, {"device_name": " "})";
        const QByteArray longer = R"({"device_name": "Quillmark QZ100", "supportWifi": 1})";
        const QString name = u"QZ100"_s;
        eachRow(
            {
                {"an empty catalogue permits all", "", name, true, true, true, {}},
                {"the model", plain, name, true, true, true, 1},
                {"a longer type in another case", plain, u"qz100nw"_s, true, false, false, {}},
                {"the same designation in a longer type", plain, u"Quillmark QZ100 series"_s, true, true, true, {}},
                {"the same designation in a longer name", longer, name, true, true, false, {}},
                {"no Wi-Fi", model(R"("supportWifi": 0)"), name, true, false, false, 0},
                {"dialect null", model(R"("supportWifi": 1, "isOldACL": null)"), name, true, true, false, 1},
                {"beyond 32 bits", model(R"("supportWifi": 4294967296, "isOldACL": 4294967296)"), name, true, true,
                 false, 4294967296},
                {"names that are no text never match", unnamed, name, false, false, false, {}},
            },
            [&](const QByteArray &entries, const QString &printerType, bool valid, bool wifi, bool oldAcl,
                const std::optional<qint64> &wifiCode) {
                const ModelCatalogue catalogue{QJsonDocument::fromJson('[' + entries + ']').array()};
                QCOMPARE(catalogue.isVaildFile(printerType), valid);
                QCOMPARE(catalogue.isWifiPrinter(printerType), wifi);
                QCOMPARE(catalogue.oldAclPrinter(printerType), oldAcl);
                const auto named = catalogue.modelNamed(printerType);
                QCOMPARE(named ? std::optional{named->wifiCode} : std::nullopt, wifiCode);
            });
    }

    void readsWhatItCan()
    {
        eachRow(
            {
                {"one model", R"({"printer_info": [{"device_name": "QZ100"}], "other": 1})", {}},
                {"missing", std::nullopt, CatalogueErrorCode::Unreadable},
                {"cut short", R"({"printer_info": [)", CatalogueErrorCode::NotJson},
                {"a megabyte of open brackets", QByteArray(1 << 20, '['), CatalogueErrorCode::NotJson},
            },
            [&](const std::optional<QByteArray> &file, const CatalogueErrorCode &error) {
                m_resources.removeCatalogue();
                if (file)
                    m_resources.writeCatalogue(*file);

                const auto catalogue = ModelCatalogue::readConfigured();
                QCOMPARE(catalogue ? 0 : catalogue.error().code, static_cast<int>(error));
                if (!catalogue)
                    QVERIFY2(catalogue.error().message.contains(m_resources.cataloguePath()),
                             "the message names the file");
            });
    }

    void readsIntegersLeniently()
    {
        using Limits = std::numeric_limits<qint64>;
        const auto integer = [](const QByteArray &json) {
            return jsonInteger(QJsonDocument::fromJson('[' + json + ']').array().first());
        };
        QCOMPARE(integer("-1.9"), -1);
        QCOMPARE(integer("true"), 1);
        QCOMPARE(integer("null"), 0);
        QCOMPARE(integer("\" 12abc\""), 12);
        QCOMPARE(integer("\"+3\""), 3);
        QCOMPARE(integer("\"+-3\""), 0);
        QCOMPARE(integer("1e300"), Limits::max());
        QCOMPARE(integer("-1e300"), Limits::min());
        QCOMPARE(integer("\"-99999999999999999999\""), Limits::min());
    }

    void initTestCase() { WTManager::usePorts(m_time); }

    void listsKnownPrintersWithWiFi()
    {
        m_resources.writeCatalogue(catalogue);
        auto &manager = WTManager::shared();
        manager.getInstallList();
        manager.refreshUSBPrinterList({device(u"QZ200"_s, 1), device(u"Quillmark QZ100 series"_s, 2),
                                       device(u"LX-1"_s, 3), device(u"QZ300"_s, 4)});
        QCOMPARE(manager.printerList().count(), 2);

        const WTPrinterPtr asked = manager.printerList().objectAtIndex(0);
        QCOMPARE(asked->printerType(), u"QZ100"_s);
        QCOMPARE(asked->serialNumber, u"QM1"_s);
        QCOMPARE(asked->connectionType, quint64{1});
        QCOMPARE(asked->wifiCode, -1);
        QVERIFY(asked->wifiPrinter && asked->oldAcl);
        QCOMPARE(asked->usbObj->printerName, u"Quillmark QZ100 series"_s);
        QCOMPARE(asked->usbObj->URI(), u"usb://Quillmark/Quillmark QZ100 series"_s);
        QCOMPARE(asked->usbObj->locationID, 2U);
        QCOMPARE(asked->usbObj->VID, quint64{0x6A1B});
        QCOMPARE(asked->usbObj->PID, quint64{0xFFFE});

        // Its catalogue name is no bare designation, which the record's own look-up wants.
        const WTPrinterPtr loose = manager.printerList().objectAtIndex(1);
        QCOMPARE(loose->printerType(), u"QZ300"_s);
        QCOMPARE(loose->wifiCode, 0);
        QVERIFY(!loose->wifiPrinter && !loose->oldAcl);

        manager.refreshUSBPrinterList({});
        QCOMPARE(manager.printerList().count(), 0);
        QCOMPARE(asked->printerType(), u"QZ100"_s);
    }

    void listsAllWithoutACatalogue()
    {
        m_resources.removeCatalogue();
        const LogCollector log;
        auto &manager = WTManager::shared();
        manager.getInstallList();
        manager.refreshUSBPrinterList({device(u"LX-1"_s, 1)});
        QCOMPARE(manager.printerList().count(), 1);
        const WTPrinterPtr printer = manager.printerList().objectAtIndex(0);
        QVERIFY(!printer->wifiPrinter && !printer->oldAcl);
        QCOMPARE(printer->wifiCode, 0);
        QVERIFY(manager.oldAclPrinter(u"LX-1"_s));
        QVERIFY(log.lines().constFirst().startsWith("warning: "_L1));
    }

private:
    ResourceFolder m_resources;
    VirtualTime m_time;
};

QTEST_GUILESS_MAIN(PrinterRecordTests)
#include "PrinterRecordTests.moc"
