#include "NetworksCommand.h"

#include "NetworkHint.h"
#include "NetworkRules.h"
#include "Output.h"
#include "WTApp.h"

using namespace Qt::Literals::StringLiterals;

namespace
{

/// What speaks against the network whatever its password is.
QString hintOf(const QString &name, const WTWiFi &network)
{
    QString error = NetworkRules::nameError(name);
    if (!error.isEmpty())
        return error;
    const NetworkHint hint = networkHint({.name = name, .password = u"any"_s}, &network);
    return hintText(hint);
}

} // namespace

NetworksCommand::NetworksCommand(const CommandPorts &ports, Output &output)
    : m_output(output)
    , m_host(ports)
{
}

void NetworksCommand::start()
{
    m_host.look([this](const NetworksInSight &seen) { list(seen); });
}

void NetworksCommand::list(const NetworksInSight &seen)
{
    for (const WTWiFiPtr &network : seen.networks)
        tell(*network);
    if (seen.networks.empty())
        m_output.fail(seen.problem.isEmpty() ? u"this computer sees no network"_s : seen.problem);
    if (seen.isForbidden)
        Q_EMIT done(ExitCode::NotPermitted);
    else
        Q_EMIT done(seen.networks.empty() ? ExitCode::NoneFound : ExitCode::Done);
}

void NetworksCommand::tell(const WTWiFi &network)
{
    const WTApp &app = WTApp::shared();
    const bool isOwn = network.isJoined(app.selectedSSID.value_or(QString()), app.selectedAuthMode);
    const QString name = network.SSID.value_or(QString());
    const QString security = network.authModeLabel().value_or(QString());
    const QString hint = hintOf(name, network);
    const QString band = network.only5GHz ? u"5 GHz"_s : u"2.4 GHz"_s;
    QString text =
        u"%1 %2 %  %3  %4  "_s.arg(isOwn ? u"*"_s : u" "_s).arg(network.quality, 3).arg(band, -7).arg(security);
    text += name + (hint.isEmpty() ? QString() : u"  ("_s + hint + u')');
    m_output.say(text, {{u"event"_s, u"network"_s},
                        {u"name"_s, name},
                        {u"own"_s, isOwn},
                        {u"security"_s, security},
                        {u"securityCode"_s, network.security},
                        {u"signal"_s, network.quality},
                        {u"only5GHz"_s, network.only5GHz},
                        {u"hint"_s, hint}});
}
