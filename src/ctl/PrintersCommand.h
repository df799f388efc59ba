#pragma once

#include "Command.h"
#include "CommandPorts.h"
#include "PrinterWatch.h"
#include "WTError.h"

class Output;

/// `wifitoolctl printers`: each supported printer, and whether a command to it would get through now.
class PrintersCommand : public Command
{
    Q_OBJECT

public:
    PrintersCommand(const CommandPorts &ports, Output &output);
    void start() override;

private:
    void list();
    void tell(const WTPrinterPtr &printer, const std::optional<WTError> &obstacle);

    const CommandPorts m_ports;
    Output &m_output;
    PrinterWatch m_watch;
    qsizetype m_asked = 0;
    qsizetype m_unanswered = 0;
    qsizetype m_notPermitted = 0;
};
