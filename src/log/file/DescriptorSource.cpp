#include "DescriptorSource.h"

#include "AlternateSignalStack.h"

#include <array>
#include <map>
#include <mutex>
#include <pthread.h>
#include <sys/epoll.h>
#include <thread>

/// Never destroyed: a logger may still close its file while the process ends.
class DescriptorSource::WaitingThread
{
public:
    static WaitingThread &shared()
    {
        static auto *const thread = new WaitingThread;
        return *thread;
    }

    void add(DescriptorSource &source)
    {
        const std::lock_guard lock(m_mutex);
        source.m_identifier = ++m_lastIdentifier;
        m_sources.emplace(source.m_identifier, &source);
        epoll_event event{};
        event.events = EPOLLIN;
        event.data.u64 = source.m_identifier;
        source.m_isWaiting = epoll_ctl(m_epoll.get(), EPOLL_CTL_ADD, source.m_descriptor.get(), &event) == 0;
    }

    /// The source is not called any more once this has returned.
    void remove(const DescriptorSource &source)
    {
        const std::lock_guard lock(m_mutex);
        m_sources.erase(source.m_identifier);
        epoll_ctl(m_epoll.get(), EPOLL_CTL_DEL, source.m_descriptor.get(), nullptr);
    }

private:
    WaitingThread()
        : m_epoll(epoll_create1(EPOLL_CLOEXEC))
    {
        if (m_epoll.isOpen())
            std::thread([this] { run(); }).detach();
    }

    [[noreturn]] void run()
    {
        const AlternateSignalStack signalStack;
        pthread_setname_np(pthread_self(), "log-file-events");
        std::array<epoll_event, 8> events;
        for (;;) {
            const int count = epoll_wait(m_epoll.get(), events.data(), events.size(), -1);
            for (int index = 0; index < count; ++index)
                deliver(events[static_cast<std::size_t>(index)].data.u64);
        }
    }

    void deliver(quint64 identifier)
    {
        const std::lock_guard lock(m_mutex);
        if (const auto source = m_sources.find(identifier); source != m_sources.end())
            source->second->becameReadable();
    }

    const FileDescriptor m_epoll;
    std::mutex m_mutex;
    quint64 m_lastIdentifier = 0;
    std::map<quint64, const DescriptorSource *> m_sources;
};

DescriptorSource::DescriptorSource(FileDescriptor descriptor, Reader reader, std::shared_ptr<SerialQueue> queue,
                                   Action action)
    : m_descriptor(std::move(descriptor))
    , m_reader(std::move(reader))
    , m_queue(std::move(queue))
    , m_action(std::make_shared<const Action>(std::move(action)))
{
    WaitingThread::shared().add(*this);
}

DescriptorSource::~DescriptorSource()
{
    WaitingThread::shared().remove(*this);
}

void DescriptorSource::becameReadable() const
{
    if (!m_reader(m_descriptor.get()))
        return;
    m_queue->async([weakly = std::weak_ptr(m_action)] {
        if (const auto action = weakly.lock())
            (*action)();
    });
}
