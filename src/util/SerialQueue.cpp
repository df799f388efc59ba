#include "SerialQueue.h"

#include <QScopeGuard>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <pthread.h>
#include <thread>
#include <unistd.h>
#include <utility>

using namespace Qt::Literals::StringLiterals;

void DispatchGroup::enter()
{
    m_count.fetch_add(1, std::memory_order_relaxed);
}

void DispatchGroup::leave()
{
    // The waiter may destroy the group from here on: waking goes by the counter's address alone.
    if (m_count.fetch_sub(1, std::memory_order_release) == 1)
        m_count.notify_all();
}

void DispatchGroup::wait()
{
    while (const int count = m_count.load(std::memory_order_acquire))
        m_count.wait(count, std::memory_order_acquire);
}

/// Shared by the queue and its thread, so that the thread can outlive a queue that was destroyed on itself.
struct SerialQueue::State {
    struct Entry {
        Job job;
        DispatchGroup *group;
    };
    /// Grows without moving what it holds: a caller never pays for the length of the queue.
    using Batch = std::deque<Entry>;

    explicit State(const QString &name)
        : label(name)
    {
    }

    void submit(Entry entry);
    void run();
    bool takeBatch(Batch &batch);
    bool beginVisit();
    void endVisit();
    void runVisit(const Job &job);

    const QString label;
    std::thread thread;
    std::atomic<qint64> ownThread = 0;
    /// The thread that runs a job of the queue instead of the queue's own; 0: none.
    std::atomic<qint64> visitor = 0;
    std::mutex mutex;
    std::condition_variable wake;
    Batch waiting;
    /// The queue's thread waits on `wake` and was not woken yet.
    bool isAsleep = false;
    bool isRunning = false;
    bool isEnding = false;
};

namespace
{

/// Which queue's job this thread runs.
struct Current {
    const void *queue = nullptr;
    const QString *label = nullptr;
};

thread_local Current current;

qint64 currentSystemThread()
{
    thread_local const qint64 identifier = gettid();
    return identifier;
}

void nameThread(const QString &label)
{
    constexpr qsizetype longestThreadName = 15;
    if (!label.isEmpty())
        pthread_setname_np(pthread_self(), label.toUtf8().left(longestThreadName));
}

} // namespace

void SerialQueue::State::submit(Entry entry)
{
    bool isToBeWoken = false;
    {
        const std::lock_guard lock(mutex);
        waiting.push_back(std::move(entry));
        isToBeWoken = !isRunning && std::exchange(isAsleep, false);
    }
    if (isToBeWoken)
        wake.notify_one();
}

/// Exchanges the empty `batch` with what waits. False when nothing waits and the queue ends.
bool SerialQueue::State::takeBatch(Batch &batch)
{
    std::unique_lock lock(mutex);
    if (visitor == 0)
        isRunning = false;
    while (isRunning || (waiting.empty() && !isEnding)) {
        isAsleep = true;
        wake.wait(lock);
    }
    isAsleep = false;
    isRunning = true;
    waiting.swap(batch);
    return !batch.empty();
}

/// Makes the calling thread the one that runs the queue's jobs, if there is none to run before its own.
bool SerialQueue::State::beginVisit()
{
    const std::lock_guard lock(mutex);
    if (isRunning || !waiting.empty())
        return false;
    isRunning = true;
    visitor = currentSystemThread();
    return true;
}

void SerialQueue::State::endVisit()
{
    bool isToBeWoken = false;
    {
        const std::lock_guard lock(mutex);
        isRunning = false;
        visitor = 0;
        isToBeWoken = (!waiting.empty() || isEnding) && std::exchange(isAsleep, false);
    }
    if (isToBeWoken)
        wake.notify_one();
}

void SerialQueue::State::runVisit(const Job &job)
{
    const Current before = std::exchange(current, {this, &label});
    const auto leave = qScopeGuard([&] {
        current = before;
        endVisit();
    });
    job();
}

void SerialQueue::State::run()
{
    current = {this, &label};
    ownThread = currentSystemThread();
    nameThread(label);
    Batch batch;
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
        m_state->isEnding = true;
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

void SerialQueue::visit(const Job &job)
{
    // The job may destroy this queue.
    const std::shared_ptr<State> state = m_state;
    if (state->beginVisit())
        state->runVisit(job);
    else
        sync(job);
}

bool SerialQueue::isCurrent() const
{
    return current.queue == m_state.get();
}

bool SerialQueue::runsOnThread(qint64 systemThread) const
{
    return m_state->ownThread == systemThread || m_state->visitor == systemThread;
}

QString SerialQueue::currentLabel()
{
    static thread_local const bool isMainThread = gettid() == getpid();
    if (current.label)
        return *current.label;
    return isMainThread ? u"main"_s : QString();
}
