#pragma once

#include "CommandLine.h"
#include "ExitCode.h"
#include "HostWiFi.h"
#include "TerminalPassword.h"

#include <functional>
#include <optional>

/// A network's password, or why there is none.
struct PasswordAnswer {
    std::optional<QString> password = {}; ///< Empty for a network without one.
    QString problem = {};
    ExitCode code = ExitCode::Usage; ///< Of a problem.
};

/// Fetches the password from where the command line says: a file, standard input, the terminal, NetworkManager. It
/// takes only what a printer takes. Main thread.
class PasswordSource : public QObject
{
    Q_OBJECT

public:
    using Done = std::function<void(const PasswordAnswer &)>;

    PasswordSource(const CommandPorts &ports, QObject *parent = nullptr);

    /// Once; `done` comes at once or later.
    void fetch(const CommandLine &line, const Done &done);

private:
    void askHost(const QString &network, const Done &done);

    const CommandPorts m_ports;
    HostWiFi m_host;
    TerminalPassword m_input;
};
