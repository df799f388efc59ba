#include "DescriptorSource.h"

#include "AlternateSignalStack.h"

#include <array>
#include <poll.h>
#include <pthread.h>
#include <sys/eventfd.h>

DescriptorSource::DescriptorSource(FileDescriptor descriptor, Reader reader, std::shared_ptr<SerialQueue> queue,
                                   Action action)
    : m_descriptor(std::move(descriptor))
    , m_end(eventfd(0, EFD_CLOEXEC))
    , m_reader(std::move(reader))
    , m_queue(std::move(queue))
    , m_action(std::make_shared<const Action>(std::move(action)))
{
    if (m_descriptor.isOpen() && m_end.isOpen())
        m_thread = std::thread([this] { run(); });
}

DescriptorSource::~DescriptorSource()
{
    if (!isWaiting())
        return;
    eventfd_write(m_end.get(), 1);
    m_thread.join();
}

void DescriptorSource::run() const
{
    const AlternateSignalStack signalStack;
    pthread_setname_np(pthread_self(), "log-file-events");
    std::array<pollfd, 2> awaited{{{m_descriptor.get(), POLLIN, 0}, {m_end.get(), POLLIN, 0}}};
    for (;;) {
        const bool isAnything = poll(awaited.data(), awaited.size(), -1) > 0;
        if (isAnything && awaited[1].revents != 0)
            return;
        if (!isAnything || !m_reader(m_descriptor.get()))
            continue;
        m_queue->async([weakly = std::weak_ptr(m_action)] {
            if (const auto action = weakly.lock())
                (*action)();
        });
    }
}
