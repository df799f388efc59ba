#include "TerminationRequest.h"

#include <QSocketNotifier>
#include <atomic>
#include <cerrno>
#include <cstdint>
#include <sys/eventfd.h>
#include <unistd.h>
#include <utility>

namespace
{

/// The event descriptor that the signal's handler writes to. Stays open: a handler may be under way on another thread.
std::atomic<int> descriptor = -1;

void leaveWord(int)
{
    const int error = errno;
    constexpr std::uint64_t word = 1;
    [[maybe_unused]] const ssize_t written = write(descriptor, &word, sizeof word);
    errno = error;
}

} // namespace

TerminationRequest::TerminationRequest(std::vector<int> signals)
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
    std::erase_if(signals, [](int signal) {
        struct sigaction present {
        };
        return sigaction(signal, nullptr, &present) == 0 && present.sa_handler == SIG_IGN;
    });
    for (const int signal : signals)
        sigaction(signal, &action, nullptr);
    m_signals = std::move(signals);
}

TerminationRequest::~TerminationRequest()
{
    for (const int signal : m_signals)
        std::signal(signal, SIG_DFL);
}
