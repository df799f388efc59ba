#include "SerialQueue.h"

#include "AlternateSignalStack.h"

#include <condition_variable>
#include <list>
#include <mutex>
#include <pthread.h>
#include <thread>
#include <unistd.h>
#include <utility>

using namespace Qt::Literals::StringLiterals;

void DispatchGroup::enter()
{
    ++m_count;
}

void DispatchGroup::leave()
{
    // The waiter may destroy the group from here on: waking goes by the counter's address alone.
    if (--m_count == 0)
        m_count.notify_all();
}

void DispatchGroup::wait()
{
    while (const int count = m_count)
        m_count.wait(count);
}

/// Shared by the queue and its thread, so that the thread can outlive a queue that was destroyed on itself.
struct SerialQueue::State {
    struct Entry {
        Job job;
        DispatchGroup *group;
    };

    void run();
    bool takeNext(std::list<Entry> &next);
    bool lend();
    void giveBack();

    QString label;
    std::thread thread;
    std::atomic<qint64> systemThread = 0;
    /// The thread that runs jobs at the moment: the queue's own, or one that runs a job in place. 0 while none does.
    std::atomic<qint64> runner = 0;
    std::atomic<quint64> jobsRun = 0;
    std::mutex mutex;
    std::condition_variable wake;
    /// A list, because its entries move from one list to another without memory being taken or given back: nobody
    /// enters the allocator while the lock is held, so a thread that crashes in there never holds it.
    std::list<Entry> waiting;
    bool isEnding = false;
};

namespace
{

/// The label of the queue whose thread this is; none on any other thread.
thread_local const QString *currentQueue = nullptr;

void nameThread(const QString &label)
{
    constexpr qsizetype longestThreadName = 15;
    if (!label.isEmpty())
        pthread_setname_np(pthread_self(), label.toUtf8().left(longestThreadName));
}

} // namespace

/// Waits for work and takes all there is. False when nothing waits and the queue ends.
bool SerialQueue::State::takeNext(std::list<Entry> &next)
{
    std::unique_lock lock(mutex);
    if (runner == systemThread)
        runner = 0;
    wake.wait(lock, [this] { return !runner && (!waiting.empty() || isEnding); });
    next.swap(waiting);
    if (next.empty())
        return false;
    runner = systemThread.load();
    return true;
}

/// Whether the caller may run a job in place.
bool SerialQueue::State::lend()
{
    const std::lock_guard lock(mutex);
    if (runner || !waiting.empty())
        return false;
    runner = gettid();
    return true;
}

void SerialQueue::State::giveBack()
{
    ++jobsRun;
    bool isWaitedFor = false;
    {
        const std::lock_guard lock(mutex);
        runner = 0;
        isWaitedFor = !waiting.empty() || isEnding;
    }
    if (isWaitedFor)
        wake.notify_one();
}

void SerialQueue::State::run()
{
    const AlternateSignalStack signalStack;
    currentQueue = &label;
    systemThread = gettid();
    nameThread(label);
    for (std::list<Entry> next; takeNext(next);) {
        while (!next.empty()) {
            next.front().job();
            DispatchGroup *const group = next.front().group;
            next.pop_front();
            ++jobsRun;
            if (group)
                group->leave();
        }
    }
}

SerialQueue::SerialQueue(const QString &label)
    : m_state(std::make_shared<State>())
{
    m_state->label = label;
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

void SerialQueue::submit(Job &&job, DispatchGroup *group)
{
    std::list<State::Entry> entry;
    entry.push_back({std::move(job), group});
    {
        const std::lock_guard lock(m_state->mutex);
        m_state->waiting.splice(m_state->waiting.end(), entry);
    }
    m_state->wake.notify_one();
}

void SerialQueue::async(Job job)
{
    submit(std::move(job), nullptr);
}

void SerialQueue::async(DispatchGroup &group, Job job)
{
    group.enter();
    submit(std::move(job), &group);
}

void SerialQueue::sync(const Job &job)
{
    Q_ASSERT_X(!isCurrent(), "SerialQueue::sync", "a queue cannot wait for itself");
    DispatchGroup done;
    async(done, [&job] { job(); });
    done.wait();
}

void SerialQueue::syncInPlace(const Job &job)
{
    if (!m_state->lend()) {
        sync(job);
        return;
    }
    const QString *const callersQueue = std::exchange(currentQueue, &m_state->label);
    job();
    currentQueue = callersQueue;
    m_state->giveBack();
}

bool SerialQueue::isCurrent() const
{
    return currentQueue == &m_state->label;
}

bool SerialQueue::runsOnThread(qint64 systemThread) const
{
    return m_state->systemThread == systemThread || m_state->runner == systemThread;
}

quint64 SerialQueue::jobsRun() const
{
    return m_state->jobsRun;
}

QString SerialQueue::currentLabel()
{
    thread_local const bool isMainThread = gettid() == getpid();
    if (currentQueue)
        return *currentQueue;
    return isMainThread ? u"main"_s : QString();
}
