#include "TerminationRequest.h"

#include <QSocketNotifier>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <sys/eventfd.h>
#include <unistd.h>

namespace
{

/// Where the signal's handler leaves word. Stays open: a handler may be under way on another thread.
std::atomic<int> descriptor = -1;

void leaveWord(int)
{
    const int error = errno;
    constexpr std::uint64_t word = 1;
    [[maybe_unused]] const ssize_t written = write(descriptor, &word, sizeof word);
    errno = error;
}

} // namespace

TerminationRequest::TerminationRequest()
{
    if (descriptor < 0)
        descriptor = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    if (descriptor < 0)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] {
        std::uint64_t words = 0;
        if (read(descriptor, &words, sizeof words) == sizeof words)
            Q_EMIT arrived();
    });
    struct sigaction action {
    };
    action.sa_handler = leaveWord;
    action.sa_flags = SA_RESTART | SA_ONSTACK;
    sigaction(SIGTERM, &action, nullptr);
}

TerminationRequest::~TerminationRequest()
{
    if (m_notifier)
        std::signal(SIGTERM, SIG_DFL);
}
