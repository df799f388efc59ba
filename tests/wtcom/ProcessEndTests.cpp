#include "EmulatedCommand.h"
#include "EmulatedUsb.h"
#include "SystemTime.h"
#include "WTCServer.h"
#include "WTCUSBPrinter.h"
#include "commandFrame.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTest>
#include <array>
#include <cstdio>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace
{

constexpr auto wakeUp = EmulatedCommand::WakeUp;

/// A send whose callbacks print what they are told and where.
void sendAndPrint()
{
    const auto sender = std::this_thread::get_id();
    const auto place = [sender] { return std::this_thread::get_id() == sender ? "sender" : "worker"; };
    WTCUSBPrinter::IOKit_sendACLWithURI(
        u"usb://Quillmark/QZ100?serial=QM0001"_s, commandFrame(wakeUp), kACLHeadSize, 60000,
        [place](const auto &header, quint32 *, bool *) {
            std::printf("head %d %s\n", int(header.has_value()), place());
        },
        [place](const auto &data, const auto &error) {
            std::printf("data %d %d %s\n", int(data.has_value()), error ? error->code : 0, place());
            std::fflush(stdout);
        });
}

int endDuringASend(EmulatedUsb &bus)
{
    sendAndPrint();
    while (bus.record().count(wakeUp) == 0)
        std::this_thread::sleep_for(1ms);
    return 0;
}

// The limit of processes also counts threads, so that none is to be had. It does not bind root.
int sendWithoutThreads(EmulatedUsb &)
{
    constexpr uid_t nobody = 65534;
    if (geteuid() == 0 && setuid(nobody) != 0)
        return 1;
    rlimit limit = {};
    getrlimit(RLIMIT_NPROC, &limit);
    limit.rlim_cur = 0;
    setrlimit(RLIMIT_NPROC, &limit);
    sendAndPrint();
    std::_Exit(0);
}

struct Role {
    const char *name;
    int (*play)(EmulatedUsb &bus);
    const char *output;
};

constexpr std::array roles{
    Role{"end-during-a-send", endDuringASend, "head 0 worker\ndata 0 33 worker\n"},
    Role{"send-without-threads", sendWithoutThreads, "head 0 sender\ndata 0 33 sender\n"},
};

} // namespace

/// What becomes of a send in a process that ends, or that can have no thread: each case is a process of its own.
class ProcessEndTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bothCallbacksAreMade()
    {
        for (const Role &role : roles) {
            QProcess process;
            process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
            process.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(role.name)});
            QVERIFY(process.waitForFinished());
            QCOMPARE(process.readAllStandardOutput(), role.output);
            QCOMPARE(process.exitStatus(), QProcess::NormalExit);
            QCOMPARE(process.exitCode(), 0);
        }
    }
};

int main(int argc, char **argv)
{
    for (const Role &role : roles) {
        if (argc == 2 && role.name == std::string_view(argv[1])) {
            static auto *const time = new SystemTime;
            const PrinterScript neverAnswers{.faults = {{.command = wakeUp, .silent = true}}};
            static auto *const bus = new EmulatedUsb(*time, PrinterModel({}, neverAnswers));
            WTCServer::usePorts(*bus, *time);
            WTCServer::shared().registerUSBSearchServiceWithVIDs({u"0x6A1B"_s});
            return role.play(*bus);
        }
    }

    QCoreApplication application(argc, argv);
    ProcessEndTests tests;
    return QTest::qExec(&tests, argc, argv);
}

#include "ProcessEndTests.moc"
