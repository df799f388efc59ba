#pragma once

#include <QByteArray>
#include <QSocketNotifier>
#include <QString>
#include <functional>
#include <memory>
#include <optional>
#include <termios.h>

/// Reads a password from standard input while the event loop runs, so that a signal still ends the program: one line of
/// a terminal, which does not show it meanwhile, or everything up to the end of a pipe. Main thread.
class TerminalPassword
{
public:
    TerminalPassword() = default;
    /// The terminal shows again what is typed.
    ~TerminalPassword();
    TerminalPassword(const TerminalPassword &) = delete;
    TerminalPassword &operator=(const TerminalPassword &) = delete;

    static bool isTerminal();

    /// @param prompt asks for it on a terminal. @param done gets the bytes, as soon as they are there; more than a
    /// password can have are cut.
    void read(const QString &prompt, std::function<void(const QByteArray &)> done);

private:
    void readMore();
    void showTyping();

    std::function<void(const QByteArray &)> m_done;
    std::optional<termios> m_before;
    std::unique_ptr<QSocketNotifier> m_notifier;
    QByteArray m_bytes;
};
