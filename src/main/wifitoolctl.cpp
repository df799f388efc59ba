#include "ExitCode.h"
#include "InfoList.h"
#include "Output.h"
#include "RealMachine.h"
#include "WTApp.h"
#include "WTExceptionHandler.h"
#include "WTLog.h"
#include "beginProgram.h"
#include "resourceFolder.h"
#include "wt_ctl.h"

#include <QCoreApplication>
#include <csignal>
#include <cstdio>
#include <vector>

namespace
{

/// As a shell tells of a program that a signal has ended.
constexpr int segmentationFault = 128 + SIGSEGV;
constexpr int usageError = static_cast<int>(ExitCode::Usage);

int print(const CommandLine::Message &message)
{
    using Kind = CommandLine::Message::Kind;
    switch (message.kind) {
    case Kind::Help:
        std::puts(qUtf8Printable(message.text));
        return 0;
    case Kind::Version:
        InfoList::setResourceFolder(resourceFolder());
        std::printf("wifitoolctl %s\n", qPrintable(WTApp::shared().appFullVersion()));
        return 0;
    case Kind::Error:
        Output(message.json).fail(message.text, QStringLiteral("(wifitoolctl --help tells the commands)"));
        return usageError;
    }
    Q_UNREACHABLE();
}

/// The signals of these that the program was started to ignore, as nohup does.
std::vector<int> ignoredOf(std::vector<int> signals)
{
    std::erase_if(signals, [](int signal) {
        struct sigaction present {
        };
        return sigaction(signal, nullptr, &present) != 0 || present.sa_handler != SIG_IGN;
    });
    return signals;
}

} // namespace

int main(int argc, char **argv)
{
    QStringList arguments;
    for (int index = 0; index < argc; ++index)
        arguments += QString::fromUtf8(argv[index]);
    const auto parsed = CommandLine::parse(arguments);
    if (const auto *message = std::get_if<CommandLine::Message>(&parsed))
        return print(*message);

    WTExceptionHandler::setStatusAfterFault(segmentationFault);
    const std::vector<int> ignored = ignoredOf({SIGHUP, SIGINT});
    const Machine machine = realMachine();
    beginProgram(machine);
    // The log reports these signals; what was ignored stays so.
    for (const int signal : ignored)
        std::signal(signal, SIG_IGN);
    const QCoreApplication application(argc, argv);
    const int status = wt_ctl(std::get<CommandLine>(parsed),
                              {machine.time, machine.spooler, machine.desktop, machine.hostWiFi, machine.capabilities});
    // While the toolkit's own data still exist: the loggers use them.
    WTLog::flushLog();
    return status;
}
