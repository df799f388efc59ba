#include "JoinCommand.h"

#include "Localized.h"
#include "NetworkHint.h"
#include "NetworkRules.h"
#include "Output.h"
#include "PrintQueueBusyCheck.h"
#include "PrinterFacts.h"
#include "ScannerLock.h"
#include "askInBackground.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace
{

/// The models whose print queue is printing; all of them while a scan is under way. Waits for the spooler.
QStringList busyModels(SpoolerPort &spooler, const QStringList &models)
{
    if (ScannerLock::isHeld(ScannerLock::configuredPaths()))
        return models;
    QStringList busy;
    for (const QString &model : models)
        if (isWorkingWithPrintType(spooler, model, BusyCheckVariant::List))
            busy += model;
    return busy;
}

/// One printer in one port.
std::pair<quint32, QString> placeOf(const WTPrinter &printer)
{
    return {printer.usbObj->locationID, printer.serialNumber};
}

} // namespace

JoinCommand::JoinCommand(const CommandLine &line, const CommandPorts &ports, Output &output)
    : m_line(line)
    , m_ports(ports)
    , m_output(output)
    , m_network(std::make_shared<WTWiFi>())
    , m_passwords(ports)
    , m_host(ports)
    , m_report(ports.time, output)
{
    connect(&m_watch, &PrinterWatch::changed, this, &JoinCommand::printersChanged);
}

void JoinCommand::start()
{
    if (!NetworkRules::isNameUsable(m_line.network)) {
        const QString fault = NetworkRules::nameError(m_line.network);
        m_output.fail(fault.isEmpty() ? u"the network's name is empty"_s : fault);
        Q_EMIT done(ExitCode::Usage);
        return;
    }
    m_passwords.fetch(m_line, [this](const PasswordAnswer &answer) { takePassword(answer); });
}

void JoinCommand::takePassword(const PasswordAnswer &answer)
{
    if (!answer.password) {
        m_output.fail(answer.problem);
        Q_EMIT done(answer.code);
        return;
    }
    m_network->SSID = m_line.network;
    m_network->password = answer.password;
    hint();
    m_watch.start();
}

void JoinCommand::hint()
{
    m_host.look([this](const NetworksInSight &seen) {
        const auto listed =
            std::ranges::find(seen.networks, m_network->SSID, [](const auto &one) { return one->SSID; });
        const WTWiFi *network = listed == seen.networks.end() ? nullptr : listed->get();
        const NetworkEntry entry{m_line.network, m_network->password.value_or(QString())};
        const QString text = hintText(networkHint(entry, network));
        if (!text.isEmpty())
            m_output.note(text);
        else if (!network && !seen.networks.empty())
            m_output.note(u"This computer does not see the network "_s + m_line.network + u'.');
    });
}

void JoinCommand::printersChanged()
{
    for (const auto &job : m_jobs)
        job->setOnBus(std::ranges::any_of(m_watch.printers(), [&](const WTPrinterPtr &printer) {
            return placeOf(*printer) == placeOf(*job->printer());
        }));
    if (m_line.watch) {
        if (!m_looked)
            m_output.note(u"Waiting for printers; Ctrl-C ends."_s);
        m_looked = true;
        take(arrived());
    } else if (!m_looked) {
        m_looked = true;
        take(chosen());
    }
}

bool JoinCommand::isWanted(const WTPrinter &printer) const
{
    return m_line.printers.isEmpty() || m_line.printers.contains(printer.usbObj->URI());
}

bool JoinCommand::isAlone(const WTPrinter &printer) const
{
    const auto &printers = m_watch.printers();
    return std::ranges::count(printers, printer.usbObj->URI(), [](const auto &one) { return one->usbObj->URI(); }) == 1;
}

JoinCommand::Printers JoinCommand::chosen()
{
    Printers printers = m_watch.printers();
    if (!m_line.all && m_line.printers.isEmpty() && printers.size() > 1) {
        m_output.fail(u"%1 printers are plugged in; choose with --printer URI, or say --all"_s.arg(printers.size()));
        Q_EMIT done(ExitCode::Usage);
        return {};
    }
    std::erase_if(printers, [this](const WTPrinterPtr &printer) { return !isWanted(*printer); });
    for (const QString &uri : m_line.printers) {
        if (std::ranges::none_of(printers, [&](const auto &printer) { return printer->usbObj->URI() == uri; })) {
            m_output.fail(u"not plugged in: "_s + uri);
            ++m_missing;
        }
    }
    if (printers.empty()) {
        if (m_missing == 0)
            m_output.fail(u"no supported printer is plugged in"_s);
        Q_EMIT done(ExitCode::NoneFound);
    }
    return printers;
}

JoinCommand::Printers JoinCommand::arrived()
{
    Printers news;
    std::set<Place> present;
    for (const WTPrinterPtr &printer : m_watch.printers()) {
        const Place place = placeOf(*printer);
        const bool isKnown = m_present.contains(place) || std::ranges::any_of(m_jobs, [&](const auto &job) {
                                 return placeOf(*job->printer()) == place;
                             });
        // Another one's run has its port or its name: its turn comes when that has ended.
        if (!isKnown && std::ranges::any_of(m_jobs, [&](const auto &job) {
                return job->printer()->usbObj->URI() == printer->usbObj->URI() ||
                       job->printer()->usbObj->locationID == place.first;
            }))
            continue;
        present.insert(place);
        if (isKnown || !isWanted(*printer))
            continue;
        if (!m_line.again && m_done.contains(printer->serialNumber))
            m_output.note(nameOf(*printer) + u": done already in this watch; left alone"_s);
        else
            news.push_back(printer);
    }
    m_present = std::move(present);
    return news;
}

void JoinCommand::take(const Printers &printers)
{
    QStringList models;
    std::vector<PrinterJob *> jobs;
    for (const WTPrinterPtr &printer : printers) {
        m_jobs.push_back(std::make_unique<PrinterJob>(m_ports, printer, m_network));
        PrinterJob *job = m_jobs.back().get();
        connect(job, &PrinterJob::ended, this, [this, job] { jobEnded(*job); });
        jobs.push_back(job);
        m_report.follow(*job);
        if (!models.contains(printer->printerType()))
            models += printer->printerType();
    }
    if (jobs.empty())
        return;
    askInBackground(
        this, [&spooler = m_ports.spooler, models] { return busyModels(spooler, models); },
        [this, jobs](const QStringList &busy) {
            for (PrinterJob *job : jobs) {
                if (!isAlone(*job->printer()))
                    job->refuse(u"ambiguous"_s, u"More than one printer answers to this URI; plug in one at a time."_s);
                else if (busy.contains(job->printer()->printerType()))
                    job->refuse(u"busy"_s, localized(u"打印端口被占用，无法配置打印机"_s));
                else
                    job->start();
            }
        });
}

void JoinCommand::jobEnded(PrinterJob &job)
{
    m_report.tellEnd(job);
    const QString serial = job.printer()->serialNumber;
    if (job.result().kind == JobResult::Kind::Joined && !serial.isEmpty())
        m_done.insert(serial);
    const auto place = std::ranges::find(m_jobs, &job, [](const auto &one) { return one.get(); });
    // It is in a signal of its own.
    place->release()->deleteLater();
    m_jobs.erase(place);
    if (m_line.watch)
        take(arrived());
    endWhenAllHave();
}

void JoinCommand::endWhenAllHave()
{
    if (m_line.watch || !m_jobs.empty())
        return;
    m_report.tellSum(m_report.joined() + m_report.failed() > 1);
    Q_EMIT done(outcome());
}

ExitCode JoinCommand::outcome() const
{
    if (m_report.failed() == 0 && m_missing == 0)
        return m_report.joined() > 0 ? ExitCode::Done : ExitCode::NoneFound;
    const bool nothingElse = m_report.joined() == 0 && m_missing == 0 && m_report.notPermitted() == m_report.failed();
    return nothingElse ? ExitCode::NotPermitted : ExitCode::SomeFailed;
}

ExitCode JoinCommand::breakOff()
{
    const bool isIdleWatch = m_line.watch && m_looked && m_jobs.empty();
    const auto jobs = std::exchange(m_jobs, {});
    for (const auto &job : jobs) {
        job->disconnect(this);
        job->breakOff();
        m_report.tellEnd(*job);
    }
    m_report.tellSum(true);
    return isIdleWatch ? outcome() : ExitCode::BrokenOff;
}
