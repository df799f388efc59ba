#include "Localized.h"
#include "LogCollector.h"
#include "Rows.h"
#include "RunBed.h"
#include "WTManager.h"
#include "WTProgressView.h"

#include <QLabel>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;
using namespace EmulatedCommand;

namespace
{

const auto networkName = u"Home 网络"_s;
const auto password = u"correct horse"_s;

} // namespace

/// How long a run waits, counts and asks, over real libusb in virtual time.
class RunTimeTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void asksSevenTimesTwoSecondsApart()
    {
        LogCollector log;
        RunBed bed({.addressTime = 3600s});
        const WTPrinterPtr printer = bed.findPrinter();
        QCOMPARE(printer->wifiCode, 1);
        bed.push(printer, networkName, password);
        QVERIFY(bed.waitFor([&] { return bed.sends(Configuration) == 1; }));
        const TimePort::Instant sent = bed.time().now();
        QCOMPARE(bed.screenAtEnd(), &bed.failed());

        // Five seconds of the command's own pause, and one pause after each of seven failed answers.
        const auto waited = bed.time().now() - sent;
        QVERIFY2(waited >= 19s && waited < 20s, QByteArray::number(qint64(waited / 1ms)));
        QCOMPARE(bed.bus().record().commands(), (std::vector<quint16>{WakeUp, Configuration, Address, Address, Address,
                                                                      Address, Address, Address, Address}));
        QVERIFY(!bed.failed().showInterfaceError());
        QCOMPARE(log.firstMissing({u"info: Support Wi-Fi Config"_s, u"info: 🏷：7"_s, u"error: Too many times"_s,
                                   u"info: 🏷 result：5"_s, u"info: go to 👉🏻WTFailedView"_s}),
                 QString());
    }

    void countsProgressFromTheFirstSend()
    {
        RunBed bed({.joinTime = 60s});
        std::vector<std::pair<TimePort::Instant, int>> shown;
        connect(&bed.run(), &WTConfigurationRun::progressChanged, this,
                [&](int progress) { shown.emplace_back(bed.time().now(), progress); });
        const auto *bar = bed.installing().findChild<WTProgressView *>(u"progressView"_s);
        bed.push(bed.findPrinter(), networkName, password);
        QVERIFY(bed.waitFor([&] { return bar->progress() == 100; }));

        QCOMPARE(bar->accessibleDescription(), bed.installing().findChild<QLabel *>(u"progressLabel"_s)->text());
        QVERIFY(!bar->accessibleDescription().isEmpty());
        const auto first = std::ranges::find_if(shown, [](const auto &entry) { return entry.second == 1; }) - 1;
        QCOMPARE(first->second, 0);
        QCOMPARE(shown.end() - first, 101);
        for (int progress = 0; progress <= 100; ++progress) {
            QCOMPARE(first[progress].second, progress);
            QCOMPARE((first[progress].first - first->first) / 1ms, progress * 200);
        }
        QCOMPARE(bed.current(), &bed.installing());
        QCOMPARE(bed.screenAtEnd(), &bed.complete());
    }

    void saysSoWhereARunWaitsForEver()
    {
        using Commands = std::vector<quint16>;
        eachRow(
            {
                {"configuration never sent", 1, u"  "_s, QByteArray(), Commands{WakeUp},
                 u"sending the configuration"_s},
                {"address data too short", 1, networkName, QByteArray("192.168.1.7"),
                 Commands{WakeUp, Configuration, Address}, u"waiting for the printer's address"_s},
            },
            [&](int wifiCode, const QString &name, const QByteArray &addressData, const std::vector<quint16> &commands,
                const QString &step) {
                PrinterScript script;
                if (!addressData.isEmpty())
                    script.faults.push_back({.command = Address, .data = addressData});
                LogCollector log;
                RunBed bed(script);
                const WTPrinterPtr printer = bed.findPrinter();
                printer->wifiCode = wifiCode;
                const auto *line = bed.installing().findChild<QLabel *>(u"progressLabel"_s);
                TimePort::Instant lastStep;
                connect(&bed.run(), &WTConfigurationRun::stepChanged, this, [&] { lastStep = bed.time().now(); });
                bed.push(printer, name, password);

                QVERIFY(bed.waitFor([&] { return WTManager::shared().closeEnable() == WTManager::CloseIgnored; }));
                QVERIFY(bed.waitFor([&] { return WTManager::shared().closeEnable() == WTManager::CloseAsks; }));
                QCOMPARE((bed.time().now() - lastStep) / 1ms, 240'000);
                QCOMPARE(line->text(), localized(u"打印机没有应答，您现在可以关闭此窗口。"_s));
                QCOMPARE(bed.installing().findChild<WTProgressView *>()->accessibleDescription(), line->text());
                QVERIFY(log.lines().contains(u"error: No step for 240 seconds: "_s + step));
                bed.time().advance(600s);
                QCoreApplication::processEvents();
                QCOMPARE(bed.current(), &bed.installing());
                QCOMPARE(bed.bus().record().commands(), commands);
            });
    }
};

QTEST_MAIN(RunTimeTests)
#include "RunTimeTests.moc"
