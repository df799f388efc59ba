#include "SerialQueue.h"

#include <atomic>
#include <pthread.h>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>

using namespace Qt::Literals::StringLiterals;

void DispatchGroup::enter()
{
    const std::lock_guard lock(m_mutex);
    ++m_count;
}

void DispatchGroup::leave()
{
    // Told under the lock: the waiter may destroy the group as soon as it has the lock again.
    const std::lock_guard lock(m_mutex);
    if (--m_count == 0)
        m_idle.notify_all();
}

void DispatchGroup::wait()
{
    std::unique_lock lock(m_mutex);
    m_idle.wait(lock, [this] { return m_count == 0; });
}

/// Shared by the queue and its thread, so that the thread can outlive a queue that was destroyed on itself.
struct SerialQueue::State {
    struct Entry {
        Job job;
        DispatchGroup *group;
    };

    explicit State(const QString &name)
        : label(name)
    {
    }

    void submit(Entry entry);
    void run();
    bool takeBatch(std::vector<Entry> &batch);

    const QString label;
    std::thread thread;
    std::atomic<qint64> systemThread = 0;
    std::mutex mutex;
    std::condition_variable wake;
    std::vector<Entry> waiting;
    bool asleep = false;
    bool ending = false;
};

namespace
{

/// The queue whose thread this is.
thread_local const void *currentQueue = nullptr;
thread_local const QString *currentQueueLabel = nullptr;

void nameThread(const QString &label)
{
    constexpr qsizetype longestThreadName = 15;
    if (!label.isEmpty())
        pthread_setname_np(pthread_self(), label.toUtf8().left(longestThreadName));
}

} // namespace

void SerialQueue::State::submit(Entry entry)
{
    bool wasAsleep = false;
    {
        const std::lock_guard lock(mutex);
        waiting.push_back(std::move(entry));
        wasAsleep = std::exchange(asleep, false);
    }
    if (wasAsleep)
        wake.notify_one();
}

/// Exchanges the empty `batch` with what waits. False when nothing waits and the queue ends.
bool SerialQueue::State::takeBatch(std::vector<Entry> &batch)
{
    std::unique_lock lock(mutex);
    while (waiting.empty() && !ending) {
        asleep = true;
        wake.wait(lock);
    }
    asleep = false;
    waiting.swap(batch);
    return !batch.empty();
}

void SerialQueue::State::run()
{
    currentQueue = this;
    currentQueueLabel = &label;
    systemThread = gettid();
    nameThread(label);
    std::vector<Entry> batch;
    while (takeBatch(batch)) {
        for (Entry &entry : batch) {
            entry.job();
            entry.job = nullptr;
            if (entry.group)
                entry.group->leave();
        }
        batch.clear();
    }
}

SerialQueue::SerialQueue(const QString &label)
    : m_state(std::make_shared<State>(label))
{
    m_state->thread = std::thread([state = m_state] { state->run(); });
}

SerialQueue::~SerialQueue()
{
    {
        const std::lock_guard lock(m_state->mutex);
        m_state->ending = true;
    }
    m_state->wake.notify_one();
    if (isCurrent())
        m_state->thread.detach();
    else
        m_state->thread.join();
}

QString SerialQueue::label() const
{
    return m_state->label;
}

void SerialQueue::async(Job job)
{
    m_state->submit({std::move(job), nullptr});
}

void SerialQueue::async(DispatchGroup &group, Job job)
{
    group.enter();
    m_state->submit({std::move(job), &group});
}

void SerialQueue::sync(const Job &job)
{
    Q_ASSERT_X(!isCurrent(), "SerialQueue::sync", "a queue cannot wait for itself");
    DispatchGroup done;
    async(done, [&job] { job(); });
    done.wait();
}

bool SerialQueue::isCurrent() const
{
    return currentQueue == m_state.get();
}

bool SerialQueue::runsOnThread(qint64 systemThread) const
{
    return m_state->systemThread == systemThread;
}

QString SerialQueue::currentLabel()
{
    static thread_local const bool isMainThread = gettid() == getpid();
    if (currentQueueLabel)
        return *currentQueueLabel;
    return isMainThread ? u"main"_s : QString();
}
