#include "wt_ctl.h"

#include "JoinCommand.h"
#include "Log.h"
#include "NetworksCommand.h"
#include "Output.h"
#include "PrinterQuestion.h"
#include "PrintersCommand.h"
#include "TerminationRequest.h"

#include <QCoreApplication>
#include <csignal>
#include <optional>

namespace
{

std::unique_ptr<Command> commandFor(const CommandLine &line, const CommandPorts &ports, Output &output)
{
    switch (line.subcommand) {
    case CommandLine::Subcommand::Printers:
        return std::make_unique<PrintersCommand>(ports, output);
    case CommandLine::Subcommand::Networks:
        return std::make_unique<NetworksCommand>(ports, output);
    case CommandLine::Subcommand::Join:
        return std::make_unique<JoinCommand>(line, ports, output);
    case CommandLine::Subcommand::Check:
    case CommandLine::Subcommand::Address:
    case CommandLine::Subcommand::InformationPage:
        return std::make_unique<PrinterQuestion>(line, ports, output);
    }
    Q_UNREACHABLE();
}

} // namespace

int wt_ctl(const CommandLine &line, const CommandPorts &ports)
{
    // A reader that hangs up must not keep a kernel driver from coming back.
    std::signal(SIGPIPE, SIG_IGN);
    Output output(line.json);
    const auto command = commandFor(line, ports, output);
    std::optional<ExitCode> end;
    const auto endWith = [&end](ExitCode code) {
        if (!end)
            end = code;
        QCoreApplication::exit(static_cast<int>(*end));
    };
    QObject::connect(command.get(), &Command::done, command.get(), endWith, Qt::QueuedConnection);
    const TerminationRequest termination({SIGINT, SIGTERM, SIGHUP});
    QObject::connect(&termination, &TerminationRequest::arrived, command.get(), [&] {
        logWarning("Asked to end; what is under way is broken off.");
        endWith(command->breakOff());
    });
    QMetaObject::invokeMethod(command.get(), &Command::start, Qt::QueuedConnection);
    const int status = QCoreApplication::exec();
    logInfo("wifitoolctl ends with %d", status);
    return status;
}
