#include "PrinterJob.h"

#include "DesktopPort.h"
#include "FailureText.h"
#include "Localized.h"
#include "Log.h"
#include "PrinterFacts.h"
#include "WTCUSBPrinter.h"

using namespace Qt::Literals::StringLiterals;

namespace
{

/// A printer may leave the bus for a moment while it changes networks.
constexpr TimePort::Duration longestAbsence = std::chrono::seconds(15);

QString codeOf(const RunCause &cause)
{
    if (cause.error.cause)
        return u"%1/%2"_s.arg(usbErrorDomain).arg(static_cast<int>(cause.error.cause->code));
    return u"%1/%2"_s.arg(cause.error.domain).arg(cause.error.code);
}

CauseText headline(const RunOutcome &outcome)
{
    const FailureText failure =
        failureText(outcome.showInterfaceError.value_or(false), outcome.showWiFiCapabilityError.value_or(false),
                    outcome.wifiCapabilityError.value_or(CapabilityReason::Unknown));
    return {localized(failure.text), localized(failure.advice)};
}

} // namespace

PrinterJob::PrinterJob(const CommandPorts &ports, const WTPrinterPtr &printer, const WTWiFiPtr &network,
                       QObject *parent)
    : QObject(parent)
    , m_ports(ports)
    , m_printer(printer)
    , m_run(std::make_unique<WTConfigurationRun>(ports.time, ports.host.canPollAddress))
    , m_start(ports.time.now())
{
    m_run->setPrinter(printer);
    m_run->setWifi(network);
    // Queued: the run goes when it has ended, and may not do so inside its own signal.
    connect(m_run.get(), &WTConfigurationRun::ended, this, &PrinterJob::judge, Qt::QueuedConnection);
    connect(m_run.get(), &WTConfigurationRun::stepChanged, this, &PrinterJob::follow);
    connect(m_run.get(), &WTConfigurationRun::progressChanged, this, [this](int progress) { m_progress = progress; });
    connect(
        m_run.get(), &WTConfigurationRun::stepUnanswered, this,
        [this] {
            fail(u"unanswered"_s, {u"The printer has not answered for minutes."_s, {}});
        },
        Qt::QueuedConnection);
}

PrinterJob::~PrinterJob() = default;

std::chrono::milliseconds PrinterJob::duration() const
{
    return std::chrono::duration_cast<std::chrono::milliseconds>((m_ended ? m_end : m_ports.time.now()) - m_start);
}

void PrinterJob::start()
{
    m_start = m_ports.time.now();
    m_run->start();
}

void PrinterJob::refuse(const QString &code, const QString &why)
{
    fail(code, {why, {}});
}

void PrinterJob::setOnBus(bool isOnBus)
{
    if (isOnBus || m_ended) {
        m_absence.reset();
        return;
    }
    if (m_absence)
        return;
    m_absence = onMainThreadAfter(m_ports.time, longestAbsence, [this] {
        if (m_step != RunStep::WaitingForAddress)
            return;
        const WTError gone{wtcErrorDomain, static_cast<int>(WTCErrorCode::Unreachable), u"the printer left the bus"_s,
                           UsbCause{UsbErrorCode::Unplugged}};
        const RunCause cause{m_step, gone};
        fail(codeOf(cause), causeText(cause, m_ports.desktop.deviceAccess()));
    });
}

void PrinterJob::breakOff()
{
    if (m_ended)
        return;
    logWarning("Broken off while %@: %@", logName(m_step), nameOf(*m_printer));
    m_result = {.kind = JobResult::Kind::BrokenOff};
    end();
}

void PrinterJob::follow(RunStep step, int attempt)
{
    m_step = step;
    m_attempt = attempt;
    m_stepText = stepLine(step, attempt);
    if (step != RunStep::Ended)
        Q_EMIT stepChanged();
}

void PrinterJob::judge(const RunOutcome &outcome)
{
    if (m_ended)
        return;
    if (outcome.screen == RunOutcome::Screen::Complete) {
        m_result = {.kind = JobResult::Kind::Joined, .address = m_printer->ip};
        end();
        return;
    }
    CauseText told;
    if (outcome.cause)
        told = causeText(*outcome.cause, m_ports.desktop.deviceAccess());
    if (told.cause.isEmpty()) {
        const QString details = told.details;
        told = headline(outcome);
        told.details = details;
    }
    const bool hasBusCause = outcome.cause && outcome.cause->error.cause;
    m_result.isNotPermitted = hasBusCause && outcome.cause->error.cause->code == UsbErrorCode::PermissionDenied;
    fail(outcome.cause ? codeOf(*outcome.cause) : u"failed"_s, told);
}

void PrinterJob::fail(const QString &code, const CauseText &told)
{
    if (m_ended)
        return;
    m_result.kind = JobResult::Kind::Failed;
    m_result.code = code;
    m_result.told = told;
    end();
}

void PrinterJob::end()
{
    m_ended = true;
    m_end = m_ports.time.now();
    m_absence.reset();
    m_run.reset();
    Q_EMIT ended();
}
