#include "PrinterOperation.h"

#include "WTManager.h"

#include <QThread>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

void Answer::give(int status, const QString &text)
{
    m_given.change([&](Given &given) {
        given = {given.calls + 1, u"%1, %2"_s.arg(status).arg(text), QThread::currentThread()};
    });
}

int Answer::calls() const
{
    return m_given.read([](const Given &given) { return given.calls; });
}

QString Answer::text() const
{
    return m_given.read([](const Given &given) { return given.text; });
}

bool Answer::wasGivenOn(const QThread *thread) const
{
    return m_given.read([&](const Given &given) { return given.thread == thread; });
}

bool tellsSecret(const QStringList &lines)
{
    const QString part = networkPassword.sliced(4, 4);
    const QString bytes = QString::fromLatin1(part.toUtf8().toHex());
    return std::ranges::any_of(
        lines, [&](const QString &line) { return line.contains(part) || line.contains(bytes, Qt::CaseInsensitive); });
}

std::shared_ptr<Answer> start(Operation operation, const QString &uri)
{
    constexpr quint32 location = 0x01100000;
    const auto answer = std::make_shared<Answer>();
    const auto status = [answer](const ResultAnswer &given) { answer->give(given); };
    switch (operation) {
    case Operation::WakeUp:
        WTManager::wt_wakeUpPrinter(uri, location, [answer](bool success, const std::optional<QString> &message) {
            answer->give(success ? 1 : 0, message.value_or(u"no message"_s));
        });
        break;
    case Operation::Capability:
        WTManager::checkWiFiCapabilityFromPrinter(uri, location, status);
        break;
    case Operation::Configuration:
        WTManager::wifiConfigForPrinter(uri, location, networkName, networkPassword, status);
        break;
    case Operation::Address:
        WTManager::getIPAddressFromPrinter(uri, location, [answer](const AddressAnswer &given) {
            answer->give(static_cast<int>(given.status), given.text);
        });
        break;
    case Operation::InformationPage:
        WTManager::printingWiFiInfoFromPrinter(uri, location, u"QZ100"_s, status);
        break;
    }
    return answer;
}

PrinterScript scriptWith(Operation operation, PrinterFault fault)
{
    PrinterScript script;
    fault.command = static_cast<quint16>(operation);
    script.joinedFromStart = true;
    script.faults.push_back(fault);
    return script;
}
