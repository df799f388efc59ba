#include "SystemTime.h"
#include "WTCServer.h"
#include "WTCUSBPrinter.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTest>
#include <array>
#include <cstdio>
#include <future>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace
{

/// A printer that takes every frame and never answers. It tells when somebody begins to wait.
class SilentConnection final : public UsbConnection
{
public:
    explicit SilentConnection(std::promise<void> &reading)
        : m_reading(reading)
    {
    }

    std::optional<WTError> write(QByteArrayView) override { return std::nullopt; }

    WTResult<QByteArray> read(qsizetype) override
    {
        m_reading.set_value();
        m_cancelled.get_future().wait();
        return WTError{usbErrorDomain, static_cast<int>(UsbErrorCode::Cancelled), u"cancelled"_s};
    }

    QByteArray drainInput() override { return {}; }

    void cancel() override { m_cancelled.set_value(); }

private:
    std::promise<void> &m_reading;
    std::promise<void> m_cancelled;
};

class SilentBus final : public UsbPort
{
public:
    void watch(std::vector<quint16>, ListChanged) override {}
    void stopWatching() override {}
    UsbDeviceList devices(const std::vector<quint16> &) override
    {
        return {{0x6A1B, 1, 0x01100000, u"Quillmark"_s, u"QZ100"_s, u"1"_s, {}}};
    }
    WTResult<std::unique_ptr<UsbConnection>> open(const UsbDevice &) override
    {
        return std::unique_ptr<UsbConnection>(std::make_unique<SilentConnection>(m_reading));
    }
    std::optional<WTError> obstacle(const UsbDevice &) override { return std::nullopt; }

    void waitForReader() { m_reading.get_future().wait(); }

private:
    std::promise<void> m_reading;
};

/// A send whose callbacks print what they are told and where.
void sendAndPrint()
{
    const auto sender = std::this_thread::get_id();
    const auto place = [sender] { return std::this_thread::get_id() == sender ? "sender" : "worker"; };
    WTCUSBPrinter::IOKit_sendACLWithURI(
        u"usb://Quillmark/QZ100?serial=1"_s, "frame", kACLHeadSize, 60000,
        [place](const auto &header, quint32 *, bool *) {
            std::printf("head %d %s\n", int(header.has_value()), place());
        },
        [place](const auto &data, const auto &error) {
            std::printf("data %d %d %s\n", int(data.has_value()), error ? error->code : 0, place());
            std::fflush(stdout);
        });
}

int endDuringASend(SilentBus &bus)
{
    sendAndPrint();
    bus.waitForReader();
    return 0;
}

// The limit of processes also counts threads, so that none is to be had. It does not bind root.
int sendWithoutThreads(SilentBus &)
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
    int (*play)(SilentBus &bus);
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
            static auto *const bus = new SilentBus;
            WTCServer::usePorts(*bus, *time);
            return role.play(*bus);
        }
    }

    QCoreApplication application(argc, argv);
    ProcessEndTests tests;
    return QTest::qExec(&tests, argc, argv);
}

#include "ProcessEndTests.moc"
