#pragma once

#include "Command.h"
#include "CommandLine.h"
#include "CommandPorts.h"
#include "PrinterAnswer.h"
#include "PrinterWatch.h"

class Output;

/// `wifitoolctl check`, `address` and `information-page`: one command to one printer, which is woken first.
class PrinterQuestion : public Command
{
    Q_OBJECT

public:
    PrinterQuestion(const CommandLine &line, const CommandPorts &ports, Output &output);
    void start() override;

private:
    void choose();
    /// A page of a printer that prints would come in the middle of its job.
    void askUnlessBusy();
    void ask();
    void judgeCheck(const ResultAnswer &answer);
    void judgeAddress(const AddressAnswer &answer);
    void judgePage(const ResultAnswer &answer);

    void succeed(const QString &text, const QJsonObject &facts);
    void fail(const std::optional<WTError> &cause, const QString &otherwise, const QString &advice = {});

    const CommandLine m_line;
    const CommandPorts m_ports;
    Output &m_output;
    PrinterWatch m_watch;
    WTPrinterPtr m_printer;
};
