#include "TerminalPassword.h"

#include <array>
#include <cstdio>
#include <unistd.h>
#include <utility>

namespace
{

constexpr qsizetype mostBytes = 4096;

} // namespace

TerminalPassword::~TerminalPassword()
{
    showTyping();
}

bool TerminalPassword::isTerminal()
{
    return isatty(STDIN_FILENO) == 1;
}

void TerminalPassword::read(const QString &prompt, std::function<void(const QByteArray &)> done)
{
    m_done = std::move(done);
    termios settings{};
    if (tcgetattr(STDIN_FILENO, &settings) == 0) {
        m_before = settings;
        settings.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        settings.c_lflag |= ECHONL;
        // What was typed ahead is dropped with this, so the question comes after it.
        tcsetattr(STDIN_FILENO, TCSAFLUSH, &settings);
        std::fputs(qUtf8Printable(prompt), stderr);
    }
    m_notifier = std::make_unique<QSocketNotifier>(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] { readMore(); });
}

void TerminalPassword::readMore()
{
    std::array<char, 512> buffer{};
    const ssize_t count = ::read(STDIN_FILENO, buffer.data(), buffer.size());
    if (count > 0)
        m_bytes.append(buffer.data(), count);
    const bool isWhole = count <= 0 || (m_before && m_bytes.endsWith('\n'));
    if (!isWhole && m_bytes.size() < mostBytes)
        return;
    showTyping();
    // It is this object's own signal that is being handled.
    m_notifier->setEnabled(false);
    m_notifier.release()->deleteLater();
    std::exchange(m_done, {})(std::exchange(m_bytes, {}));
}

void TerminalPassword::showTyping()
{
    if (m_before)
        tcsetattr(STDIN_FILENO, TCSAFLUSH, &*m_before);
    m_before.reset();
}
