#include "FaultMatrix.h"
#include "ListBed.h"
#include "ProcessFigures.h"
#include "ScannerLock.h"
#include "SendWorkers.h"
#include "WTManager.h"

#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPixmapCache>
#include <QPushButton>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace
{

enum class Entry { List, Manual };

struct Expected {
    QByteArray screen;
    QString message;
    WTManager::CloseState closeState;

    bool operator==(const Expected &) const = default;
};

Expected expectedAt(Ending ending)
{
    switch (ending) {
    case Ending::Complete:
        return {"WTCompleteView", u"恭喜，您完成了无线网络配置！"_s, WTManager::CloseQuits};
    case Ending::Failed:
        return {"WTFailedView", u"配网失败"_s, WTManager::CloseAsks};
    case Ending::Unsupported:
        return {"WTFailedView", u"配网失败"_s, WTManager::CloseQuits};
    case Ending::ConfigFailed:
        return {"WTConfigFailedView", u"打印机没有接受这次配置。"_s, WTManager::CloseAsks};
    case Ending::Unanswered:
        return {"WTInstallingView", u"打印机没有响应。请关闭此窗口，重新启动打印机后再试一次。"_s,
                WTManager::CloseAsks};
    }
    Q_UNREACHABLE();
}

constexpr auto runScreen = "WTInstallingView";
const auto networkName = u"Home"_s;

/// One person at the wizard, from the first screen to the last.
class Person
{
public:
    Person(std::shared_ptr<UsbTestBed> usb, Entry entry)
        : m_entry(entry)
        , m_bed(std::move(usb), networkName)
    {
        m_bed.hostWiFi.now.poweredOn = entry == Entry::List;
    }

    ListBed &bed() { return m_bed; }

    void reachEntryScreen()
    {
        if (m_entry == Entry::List) {
            m_bed.enter();
            return;
        }
        m_bed.click("netxtBtn");
        m_bed.paste(field("ssidTextField"), networkName);
        m_bed.paste(field("passwordTextField"), u"secret of Home"_s);
    }

    /// @return the message that showed; empty if none did.
    QString askForInformationPage()
    {
        m_bed.click("printWiFiHomePage");
        if (!m_bed.waitFor([this] { return m_bed.alert(); }))
            return {};
        const QString said = m_bed.alert()->informativeText();
        m_bed.alert()->buttons().constFirst()->click();
        return m_bed.waitFor([this] { return !m_bed.alert(); }) ? said : QString();
    }

    /// @return whether the run came to an end, or said that it will not.
    bool run()
    {
        m_bed.click(m_entry == Entry::List ? "btn_nextStep" : "nextBtn");
        return m_bed.waitFor([this] { return m_bed.shown() != runScreen || message() == unanswered; });
    }

    void goBack() { m_bed.click("previous"); }

    /// What the screen tells.
    QString message()
    {
        const char *label = m_bed.shown() == runScreen ? "progressLabel" : "message";
        return qobject_cast<QLabel *>(m_bed.widget(label))->text();
    }

    Expected seen() { return {m_bed.shown(), message(), WTManager::CloseState(WTManager::shared().closeEnable())}; }

private:
    QLineEdit &field(const char *name) { return *qobject_cast<QLineEdit *>(m_bed.widget(name)); }

    const QString unanswered = expectedAt(Ending::Unanswered).message;
    Entry m_entry;
    ListBed m_bed;
};

QStringList descriptorsWithoutScannerLocks()
{
    QStringList descriptors = ProcessFigures::descriptors();
    const QStringList locks = ScannerLock::configuredPaths();
    descriptors.removeIf([&](const QString &target) { return locks.contains(target); });
    return descriptors;
}

/// The emulated bus and the test itself keep a few bytes of each run. A screen, transfer or frame that is not freed
/// would take more than this.
constexpr qint64 bytesThatARunMayKeep = 1024;
constexpr std::size_t runsUntilSettled = 100;

/// The number of runs that the environment asks for; without it, `everyPlace` is walked once.
int wantedRuns()
{
    return qEnvironmentVariableIntValue("WT_FAULT_MATRIX_RUNS");
}

} // namespace

Q_DECLARE_METATYPE(FaultCase)

namespace QTest
{
template <>
char *toString(const Expected &expected)
{
    return qstrdup(expected.screen + ": " + expected.message.toUtf8() + ", close state " +
                   QByteArray::number(qint64(expected.closeState)));
}
} // namespace QTest

/// Every fault at every step by both entry screens, over real libusb, in virtual time: each ends on its screen, and
/// leaves nothing behind. WT_FAULT_MATRIX_RUNS is the number of runs in a row.
class FaultMatrixTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_usb->bus.addPrinter();
        // The first run makes what a process keeps until its end; the figures are taken after it.
        walk({.name = "no fault"}, Entry::List);
        walk({.name = "no fault"}, Entry::Manual);
        m_usb->bus.unplug();
        m_descriptors = descriptorsWithoutScannerLocks();
        m_threads = ProcessFigures::threads();
    }

    void run_data()
    {
        QTest::addColumn<FaultCase>("faultCase");
        QTest::addColumn<Entry>("entry");

        int rows = 0;
        const auto addRow = [&rows](const FaultCase &faultCase, Entry entry) {
            const char *screen = entry == Entry::List ? "list" : "manual";
            QTest::addRow("%d, %s, %s", ++rows, screen, faultCase.name.constData()) << faultCase << entry;
        };
        if (wantedRuns() == 0) {
            for (const FaultCase &faultCase : FaultMatrix::everyPlace()) {
                const bool byHand = faultCase.place == FaultPlace::InformationPage || rows % 2 == 0;
                addRow(faultCase, byHand ? Entry::Manual : Entry::List);
            }
            return;
        }
        while (rows < wantedRuns()) {
            for (const FaultCase &faultCase : FaultMatrix::everyAttempt()) {
                addRow(faultCase, Entry::Manual);
                if (faultCase.place != FaultPlace::InformationPage)
                    addRow(faultCase, Entry::List);
            }
        }
    }

    void run()
    {
        QFETCH(FaultCase, faultCase);
        QFETCH(Entry, entry);
        walk(faultCase, entry);
        m_usb->bus.unplug();
        // The emulated bus closes its end of a connection a little later, and a worker may not have ended yet, now or
        // when the first figures were taken. So the least that was ever seen counts.
        QTRY_VERIFY2(
            descriptorsWithoutScannerLocks().size() <= m_descriptors.size(),
            qPrintable(u"%1\nbefore: %2"_s.arg(ProcessFigures::descriptors().join(u' '), m_descriptors.join(u' '))));
        m_descriptors = descriptorsWithoutScannerLocks();
        QTRY_VERIFY(ProcessFigures::threads() <= m_threads);
        m_threads = ProcessFigures::threads();
        // The cache of pictures has a limit of its own, so what it holds is no leak.
        QPixmapCache::clear();
        m_heap.push_back(ProcessFigures::heap());
    }

    void cleanupTestCase()
    {
        if (m_heap.size() < runsUntilSettled)
            return;
        const std::size_t settled = m_heap[m_heap.size() / 2];
        const auto growth = (qint64(m_heap.back()) - qint64(settled)) / qint64(m_heap.size() - m_heap.size() / 2);
        qInfo("%zu runs; descriptors %lld, threads %d before and after; heap %zu, %zu, %zu KiB after the first, the "
              "middle "
              "and the last, %lld bytes a run in the second half",
              m_heap.size(), qint64(m_descriptors.size()), m_threads, m_heap.front() / 1024, settled / 1024,
              m_heap.back() / 1024, qint64(growth));
        QVERIFY(growth < bytesThatARunMayKeep);
    }

private:
    void walk(const FaultCase &faultCase, Entry entry)
    {
        m_usb->bus.replacePrinter(PrinterModel({.model = u"QZ200"_s}));
        m_usb->bus.plug();
        Person person(m_usb, entry);
        ListBed &bed = person.bed();
        person.reachEntryScreen();
        bed.bus().setScript(faultCase.script);
        // A fault before the first frame must have happened before the run begins.
        bool isOver = false;
        const auto pause = bed.time().after(2s, [&isOver] { isOver = true; });
        QVERIFY(bed.waitFor([&isOver] { return isOver; }));
        if (faultCase.place == FaultPlace::InformationPage)
            QVERIFY(person.askForInformationPage().startsWith(u"已将无线网络信息页发送给打印机"_s));
        for (int refusal = 0; refusal < faultCase.refusals; ++refusal) {
            QVERIFY(person.run());
            QCOMPARE(person.seen(), expectedAt(Ending::ConfigFailed));
            person.goBack();
        }
        QVERIFY(person.run());
        QCOMPARE(person.seen(), expectedAt(faultCase.ending));
        if (faultCase.ending == Ending::Complete) {
            QCOMPARE(bed.bus().record().networkName, networkName.toUtf8());
            QCOMPARE(bed.bus().record().password, "secret of Home");
        }
        bed.bus().release();
        QVERIFY(bed.waitFor([] { return SendWorkers::shared().isIdle(); }));
        QCOMPARE(bed.bus().claims(), 0);
        QCOMPARE(bed.bus().boundDriver(), bed.bus().isPlugged() ? u"usblp"_s : QString());
    }

    const std::shared_ptr<UsbTestBed> m_usb = std::make_shared<UsbTestBed>();
    QStringList m_descriptors;
    int m_threads = 0;
    std::vector<std::size_t> m_heap; ///< After each run.
};

QTEST_MAIN(FaultMatrixTests)
#include "FaultMatrixTests.moc"
