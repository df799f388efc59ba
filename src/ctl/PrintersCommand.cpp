#include "PrintersCommand.h"

#include "CauseText.h"
#include "DesktopPort.h"
#include "Output.h"
#include "PrinterCommand.h"
#include "PrinterFacts.h"
#include "WTCUSBPrinter.h"
#include "askInBackground.h"

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr qint64 wifiToBeAsked = -1;

/// In English, and in JSON.
QString stateName(const std::optional<WTError> &obstacle)
{
    if (!obstacle)
        return u"free"_s;
    switch (obstacle->cause ? obstacle->cause->code : UsbErrorCode::Failed) {
    case UsbErrorCode::Busy:
        return u"held"_s;
    case UsbErrorCode::PermissionDenied:
        return u"not permitted"_s;
    default:
        return u"unreachable"_s;
    }
}

} // namespace

PrintersCommand::PrintersCommand(const CommandPorts &ports, Output &output)
    : m_ports(ports)
    , m_output(output)
{
    connect(&m_watch, &PrinterWatch::changed, this, &PrintersCommand::list, Qt::SingleShotConnection);
}

void PrintersCommand::start()
{
    m_watch.start();
}

void PrintersCommand::list()
{
    const auto printers = m_watch.printers();
    if (printers.empty()) {
        m_output.fail(u"no supported printer is plugged in"_s);
        Q_EMIT done(ExitCode::NoneFound);
        return;
    }
    m_asked = m_unanswered = std::ssize(printers);
    for (const WTPrinterPtr &printer : printers)
        askInBackground(
            this, [uri = printer->usbObj->URI()] { return WTCUSBPrinter::obstacle(uri); },
            [this, printer](const std::optional<WTError> &obstacle) { tell(printer, obstacle); });
}

void PrintersCommand::tell(const WTPrinterPtr &printer, const std::optional<WTError> &obstacle)
{
    const QString state = stateName(obstacle);
    const QString wifi = printer->wifiCode == wifiToBeAsked ? u"unknown"_s : u"yes"_s;
    QJsonObject object{
        {u"event"_s, u"printer"_s}, {u"printer"_s, jsonOf(*printer)}, {u"wifi"_s, wifi}, {u"state"_s, state}};
    QString text = u"%1  %2  Wi-Fi %3  %4"_s.arg(nameOf(*printer), printer->usbObj->URI(), wifi, state);
    if (obstacle) {
        const CauseText told = causeText(*obstacle, PrinterCommand::wakeUp, m_ports.desktop.deviceAccess());
        text += u": "_s + told.cause + u' ' + told.advice;
        object[u"message"_s] = told.cause;
        object[u"advice"_s] = told.advice;
        if (obstacle->cause && !obstacle->cause->holder.isEmpty()) {
            object[u"holder"_s] = obstacle->cause->holder;
            object[u"holderPid"_s] = obstacle->cause->holderPID;
        }
        if (obstacle->cause && obstacle->cause->code == UsbErrorCode::PermissionDenied)
            ++m_notPermitted;
    }
    m_output.say(text, object);
    if (--m_unanswered == 0)
        Q_EMIT done(m_notPermitted == m_asked ? ExitCode::NotPermitted : ExitCode::Done);
}
