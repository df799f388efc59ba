#include "CupsBed.h"
#include "CupsSpooler.h"
#include "LogCollector.h"
#include "PrintQueueBusyCheck.h"
#include "knockAt.h"

#include <QElapsedTimer>
#include <QTest>
#include <algorithm>
#include <future>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace
{

/// libcups remembers its server for each thread, so a fresh thread asks the one that the environment names now.
std::vector<PrintDestination> askFreshly(bool onConnection)
{
    return std::async(std::launch::async,
                      [onConnection] { return CupsSpooler{{.spoolerHasConnection = onConnection}}.destinations(); })
        .get();
}

/// Takes connections on a socket and never says a word.
class SilentServer
{
public:
    explicit SilentServer(const QString &path)
        : m_socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
        qstrncpy(address.sun_path, path.toLocal8Bit().constData(), sizeof address.sun_path);
        if (::bind(m_socket, reinterpret_cast<sockaddr *>(&address), sizeof address) != 0 || ::listen(m_socket, 8) != 0)
            qFatal("No server at %s.", address.sun_path);
    }
    ~SilentServer() { ::close(m_socket); }
    SilentServer(const SilentServer &) = delete;
    SilentServer &operator=(const SilentServer &) = delete;

private:
    const int m_socket;
};

} // namespace

/// Asks a real spooler that has one queue in print and one idle.
class CupsSpoolerTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_bed.isReady());
        QVERIFY(m_bed.addQueue(u"QZ100_USB"_s));
        QVERIFY(m_bed.addQueue(u"QZ200_USB"_s));
        QVERIFY(m_bed.holdInPrint(u"QZ100_USB"_s));
    }

    void listsTheQueuesWithTheirStates()
    {
        for (const bool onConnection : {true, false}) {
            auto queues = askFreshly(onConnection);
            std::ranges::sort(queues, {}, &PrintDestination::name);
            QCOMPARE(queues.size(), 2U);
            QCOMPARE(queues[0].name, "QZ100_USB");
            QCOMPARE(queues[0].printerState, QByteArray{"4"});
            QCOMPARE(queues[1].name, "QZ200_USB");
            QCOMPARE(queues[1].printerState, QByteArray{"3"});
        }
    }

    void answersNothingAtOnceWhereNobodyListens()
    {
        const QByteArray server = qgetenv("CUPS_SERVER");
        qputenv("CUPS_SERVER", server + ".nobody");
        QElapsedTimer clock;
        clock.start();
        const bool isEmpty = askFreshly(true).empty() && askFreshly(false).empty();
        qputenv("CUPS_SERVER", server);
        QVERIFY(isEmpty);
        QVERIFY2(clock.elapsed() < 10000, qPrintable(QString::number(clock.elapsed())));
    }

    void tellsWhetherAPrinterIsThere()
    {
        const int listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        sockaddr_in place{};
        place.sin_family = AF_INET;
        place.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof place;
        QCOMPARE(bind(listener, reinterpret_cast<sockaddr *>(&place), size), 0);
        QCOMPARE(listen(listener, 0), 0); // One connection fits; the next one gets no word.
        QCOMPARE(getsockname(listener, reinterpret_cast<sockaddr *>(&place), &size), 0);
        const auto reach = [&place](const QString &address) { return knockAt(address, ntohs(place.sin_port), 2s); };
        QCOMPARE(reach(u"127.0.0.1"_s), PrinterReach::Answers);
        QElapsedTimer clock;
        clock.start();
        QCOMPARE(reach(u"127.0.0.1"_s), PrinterReach::Silent);
        QVERIFY(clock.elapsed() < 10000);
        for (const QString &any : {u"0.0.0.0"_s, u"::"_s})
            QCOMPARE(CupsSpooler{{}}.printerReach(any, 2s), PrinterReach::Silent);
        QCOMPARE(reach(u"no address"_s), PrinterReach::Silent);
        close(listener);
        QCOMPARE(reach(u"127.0.0.1"_s), PrinterReach::Refuses);
    }

    void aSpoolerThatNeverAnswersCountsAsIdle()
    {
        const QTemporaryDir folder;
        const SilentServer server(folder.filePath(u"cups.sock"_s));
        const QByteArray real = qgetenv("CUPS_SERVER");
        qputenv("CUPS_SERVER", folder.filePath(u"cups.sock"_s).toLocal8Bit());
        // Outlives the question, which ends when the server goes.
        static CupsSpooler spooler{{}};
        const LogCollector log;
        QElapsedTimer clock;
        clock.start();
        QVERIFY(!isWorkingWithPrintType(spooler, u"QZ100"_s, BusyCheckVariant::ManualEntry));
        const qint64 milliseconds = clock.elapsed();
        qputenv("CUPS_SERVER", real);
        QVERIFY2(milliseconds >= 2000 && milliseconds < 10000, qPrintable(QString::number(milliseconds)));
        QCOMPARE(log.lines().constLast(),
                 u"warning: The print spooler has not answered for 2 s; the printer counts as idle."_s);
    }

private:
    CupsBed m_bed;
};

QTEST_GUILESS_MAIN(CupsSpoolerTests)
#include "CupsSpoolerTests.moc"
