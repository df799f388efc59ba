#include "PrinterQuestion.h"

#include "CauseText.h"
#include "DesktopPort.h"
#include "FailureText.h"
#include "Localized.h"
#include "Output.h"
#include "PrintQueueBusyCheck.h"
#include "PrinterCommand.h"
#include "PrinterFacts.h"
#include "RunAnswers.h"
#include "WTCUSBPrinter.h"
#include "WTManager.h"
#include "WTNetworkWithManualAdditionModel.h"
#include "askInBackground.h"

#include <QPointer>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace
{

quint16 commandOf(CommandLine::Subcommand subcommand)
{
    switch (subcommand) {
    case CommandLine::Subcommand::Address:
        return PrinterCommand::address;
    case CommandLine::Subcommand::InformationPage:
        return PrinterCommand::informationPage;
    default:
        return PrinterCommand::wifiCapability;
    }
}

QString eventOf(CommandLine::Subcommand subcommand)
{
    switch (subcommand) {
    case CommandLine::Subcommand::Address:
        return u"address"_s;
    case CommandLine::Subcommand::InformationPage:
        return u"informationPage"_s;
    default:
        return u"check"_s;
    }
}

} // namespace

PrinterQuestion::PrinterQuestion(const CommandLine &line, const CommandPorts &ports, Output &output)
    : m_line(line)
    , m_ports(ports)
    , m_output(output)
{
    connect(&m_watch, &PrinterWatch::changed, this, &PrinterQuestion::choose, Qt::SingleShotConnection);
}

void PrinterQuestion::start()
{
    m_watch.start();
}

void PrinterQuestion::choose()
{
    auto printers = m_watch.printers();
    const QString uri = m_line.printers.value(0);
    if (uri.isEmpty() && printers.size() > 1) {
        m_output.fail(u"%1 printers are plugged in; choose with --printer URI"_s.arg(printers.size()));
        Q_EMIT done(ExitCode::Usage);
        return;
    }
    std::erase_if(printers, [&uri](const auto &one) { return !uri.isEmpty() && one->usbObj->URI() != uri; });
    if (printers.size() != 1) {
        m_output.fail(printers.size() > 1 ? u"more than one printer answers to this URI; plug in one at a time"_s
                      : uri.isEmpty()     ? u"no supported printer is plugged in"_s
                                          : u"not plugged in: "_s + uri);
        Q_EMIT done(printers.empty() ? ExitCode::NoneFound : ExitCode::SomeFailed);
        return;
    }
    m_printer = printers.front();
    askInBackground(
        this, [name = m_printer->usbObj->URI()] { return WTCUSBPrinter::obstacle(name); },
        [this](const std::optional<WTError> &obstacle) {
            if (obstacle)
                fail(obstacle, obstacle->message);
            else if (m_line.subcommand == CommandLine::Subcommand::InformationPage)
                askUnlessBusy();
            else
                ask();
        });
}

void PrinterQuestion::askUnlessBusy()
{
    askInBackground(
        this,
        [&spooler = m_ports.spooler, model = m_printer->printerType()] {
            return isWorkingWithPrintType(spooler, model, BusyCheckVariant::ManualEntry);
        },
        [this](bool isBusy) {
            if (isBusy)
                fail({}, localized(u"打印端口被占用，无法配置打印机"_s));
            else
                ask();
        });
}

void PrinterQuestion::ask()
{
    const QPointer self(this);
    if (m_line.subcommand == CommandLine::Subcommand::InformationPage) {
        WTNetworkWithManualAdditionModel::printInformationPage(m_printer, [self](const ResultAnswer &answer) {
            if (self)
                self->judgePage(answer);
        });
        return;
    }
    const QString uri = m_printer->usbObj->URI();
    const quint32 location = m_printer->usbObj->locationID;
    WTManager::wt_wakeUpPrinter(uri, location, [self, uri, location](bool, const std::optional<QString> &) {
        if (!self)
            return;
        if (self->m_line.subcommand == CommandLine::Subcommand::Address)
            WTManager::getIPAddressFromPrinter(uri, location, [self](const AddressAnswer &answer) {
                if (self)
                    self->judgeAddress(answer);
            });
        else
            WTManager::checkWiFiCapabilityFromPrinter(uri, location, [self](const ResultAnswer &answer) {
                if (self)
                    self->judgeCheck(answer);
            });
    });
}

void PrinterQuestion::judgeCheck(const ResultAnswer &answer)
{
    const CapabilityDecision decision = capabilityDecision(answer.status, static_cast<CapabilityResult>(answer.result));
    FailureText failure;
    switch (decision.action) {
    case CapabilityDecision::Action::Configure:
        return succeed(u"can be configured"_s, {});
    case CapabilityDecision::Action::CommunicationFailure:
        failure = failureText(true, false, {});
        break;
    case CapabilityDecision::Action::ShowError:
        failure = failureText(false, true, decision.reason);
        break;
    }
    fail(answer.cause, localized(failure.text), localized(failure.advice));
}

void PrinterQuestion::judgeAddress(const AddressAnswer &answer)
{
    if (answer.status == WTPrinterStatus::Success)
        return succeed(answer.text, {{u"address"_s, answer.text}});
    const bool isWithout = answer.status == WTPrinterStatus::NoData || answer.status == WTPrinterStatus::NoValidAddress;
    fail(isWithout ? std::nullopt : answer.cause, u"The printer has no address."_s);
}

void PrinterQuestion::judgePage(const ResultAnswer &answer)
{
    if (answer.status == WTPrinterStatus::Success)
        return succeed(u"the page has been sent to the printer"_s, {});
    fail(answer.cause, u"The printer has not taken the page."_s);
}

void PrinterQuestion::succeed(const QString &text, const QJsonObject &facts)
{
    QJsonObject object = facts;
    object[u"event"_s] = eventOf(m_line.subcommand);
    object[u"printer"_s] = jsonOf(*m_printer);
    object[u"result"_s] = u"done"_s;
    m_output.say(nameOf(*m_printer) + u": "_s + text, object);
    Q_EMIT done(ExitCode::Done);
}

void PrinterQuestion::fail(const std::optional<WTError> &cause, const QString &otherwise, const QString &advice)
{
    CauseText told;
    if (cause)
        told = causeText(*cause, commandOf(m_line.subcommand), m_ports.desktop.deviceAccess());
    if (told.cause.isEmpty())
        told = {otherwise, advice};
    m_output.say(QString(nameOf(*m_printer) + u": "_s + told.cause + u' ' + told.advice).trimmed(),
                 {{u"event"_s, eventOf(m_line.subcommand)},
                  {u"printer"_s, jsonOf(*m_printer)},
                  {u"result"_s, u"failed"_s},
                  {u"message"_s, told.cause},
                  {u"advice"_s, told.advice}});
    const bool isForbidden = cause && cause->cause && cause->cause->code == UsbErrorCode::PermissionDenied;
    Q_EMIT done(isForbidden ? ExitCode::NotPermitted : ExitCode::SomeFailed);
}
