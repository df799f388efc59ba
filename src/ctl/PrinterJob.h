#pragma once

#include "CauseText.h"
#include "CommandPorts.h"
#include "TimePort.h"
#include "WTConfigurationRun.h"

#include <QJsonObject>

/// How a printer's configuration ended.
struct JobResult {
    enum class Kind { Joined, Failed, BrokenOff };

    Kind kind = Kind::Failed;
    QString address = {};
    CauseText told = {};
    QString code = {}; ///< Of a failure, for programs.
    bool isNotPermitted = false;
};

/// The configuration of one printer, beside those of others: a run of the wizard's, which ends here in any case. Main
/// thread.
class PrinterJob : public QObject
{
    Q_OBJECT

public:
    PrinterJob(const CommandPorts &ports, const WTPrinterPtr &printer, const WTWiFiPtr &network,
               QObject *parent = nullptr);
    ~PrinterJob() override;

    const WTPrinterPtr &printer() const { return m_printer; }
    const JobResult &result() const { return m_result; }
    /// What is under way, in the interface language, and how far it is, in per cent.
    QString stepText() const { return m_stepText; }
    int progress() const { return m_progress; }
    RunStep step() const { return m_step; }
    int attempt() const { return m_attempt; }
    std::chrono::milliseconds duration() const;

    void start();
    /// Ends at once with a failure that was found before anything was sent.
    void refuse(const QString &code, const QString &why);
    /// The printer has left the bus, or is there again: a run that waits for the address does not notice.
    void setOnBus(bool isOnBus);
    /// Leaves the run where it is. A command that is on its way is ended by the end of the process.
    void breakOff();

Q_SIGNALS:
    void stepChanged();
    void ended();

private:
    void follow(RunStep step, int attempt);
    void judge(const RunOutcome &outcome);
    void fail(const QString &code, const CauseText &told);
    void end();

    const CommandPorts m_ports;
    const WTPrinterPtr m_printer;
    std::unique_ptr<WTConfigurationRun> m_run;
    std::unique_ptr<TimePort::Timer> m_absence;
    TimePort::Instant m_start;
    TimePort::Instant m_end;
    bool m_ended = false;
    JobResult m_result;
    RunStep m_step = RunStep::Idle;
    int m_attempt = 0;
    int m_progress = 0;
    QString m_stepText;
};
