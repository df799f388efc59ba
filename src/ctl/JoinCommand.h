#pragma once

#include "Command.h"
#include "CommandLine.h"
#include "JoinReport.h"
#include "PasswordSource.h"
#include "PrinterWatch.h"

#include <set>

/// `wifitoolctl join`: tells printers a network, each by a run of its own, side by side.
class JoinCommand : public Command
{
    Q_OBJECT

public:
    JoinCommand(const CommandLine &line, const CommandPorts &ports, Output &output);
    void start() override;
    ExitCode breakOff() override;

private:
    using Printers = std::vector<WTPrinterPtr>;
    using Place = std::pair<quint32, QString>;

    void takePassword(const PasswordAnswer &answer);
    /// Says what may keep a printer from joining; nothing waits for that.
    void hint();
    void printersChanged();
    /// Without `--watch`: the printers that the command line means. Empty when there is a reason to end.
    Printers chosen();
    /// With `--watch`: the printers that have come since the last look and whose turn it is.
    Printers arrived();
    bool isWanted(const WTPrinter &printer) const;
    bool isAlone(const WTPrinter &printer) const;
    /// Makes jobs of the printers. They start when it is known that nothing prints or scans.
    void take(const Printers &printers);
    void jobEnded(PrinterJob &job);
    void endWhenAllHave();
    ExitCode outcome() const;

    const CommandLine m_line;
    const CommandPorts m_ports;
    Output &m_output;
    const WTWiFiPtr m_network;
    PasswordSource m_passwords;
    HostWiFi m_host;
    PrinterWatch m_watch;
    JoinReport m_report;
    std::vector<std::unique_ptr<PrinterJob>> m_jobs; ///< Those under way.
    std::set<Place> m_present;                       ///< With `--watch`.
    std::set<QString> m_done;                        ///< Serial numbers, with `--watch`.
    qsizetype m_missing = 0;                         ///< Printers that were named but are not plugged in.
    bool m_looked = false;
};
