#include "SerialQueue.h"

#include "AlternateSignalStack.h"

#include <QScopeGuard>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <pthread.h>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>

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

namespace
{

/// Jobs in their order. Grows by blocks and moves nothing, so that a caller never pays for the length of the queue.
/// Blocks are used again; what is more than enough goes one block at a time, since a thread that frees many keeps the
/// callers out of the allocator.
class Batch
{
public:
    bool isEmpty() const { return m_used == 0; }

    void swap(Batch &other)
    {
        m_blocks.swap(other.m_blocks);
        std::swap(m_used, other.m_used);
    }

    void append(Job &&job, DispatchGroup *group)
    {
        if (m_used == 0 || m_blocks[m_used - 1].size() == blockSize)
            useAnotherBlock();
        m_blocks[m_used - 1].emplace_back(std::move(job), group);
    }

    void run()
    {
        for (std::size_t index = 0; index < m_used; ++index) {
            for (Entry &entry : m_blocks[index]) {
                runToItsEnd(std::move(entry.job));
                if (entry.group)
                    entry.group->leave();
            }
            m_blocks[index].clear();
        }
        const bool isLittleToDo = std::exchange(m_used, 0) == 1;
        if (isLittleToDo && m_blocks.size() > mostUnusedBlocks)
            m_blocks.pop_back();
    }

private:
    static constexpr std::size_t blockSize = 128, mostUnusedBlocks = 64;

    struct Entry {
        Job job;
        DispatchGroup *group;
    };
    using Block = std::vector<Entry>;

    /// What the job holds is gone when this returns.
    static void runToItsEnd(Job job) { job(); }

    void useAnotherBlock()
    {
        if (m_used == m_blocks.size())
            m_blocks.emplace_back().reserve(blockSize);
        ++m_used;
    }

    std::deque<Block> m_blocks;
    std::size_t m_used = 0;
};

} // namespace

/// Shared by the queue and its thread, so that the thread can outlive a queue that was destroyed on itself.
struct SerialQueue::State {

    explicit State(const QString &name)
        : label(name)
    {
    }

    void submit(Job &&job, DispatchGroup *group);
    void run();
    bool takeBatch(Batch &batch);
    bool beginVisit();
    void endVisit();
    void runVisit(const std::function<void()> &job);

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

void SerialQueue::State::submit(Job &&job, DispatchGroup *group)
{
    bool isToBeWoken = false;
    {
        const std::lock_guard lock(mutex);
        waiting.append(std::move(job), group);
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
    while (isRunning || (waiting.isEmpty() && !isEnding)) {
        isAsleep = true;
        wake.wait(lock);
    }
    isAsleep = false;
    isRunning = true;
    waiting.swap(batch);
    return !batch.isEmpty();
}

/// Makes the calling thread the one that runs the queue's jobs, if there is none to run before its own.
bool SerialQueue::State::beginVisit()
{
    const std::lock_guard lock(mutex);
    if (isRunning || !waiting.isEmpty())
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
        isToBeWoken = (!waiting.isEmpty() || isEnding) && std::exchange(isAsleep, false);
    }
    if (isToBeWoken)
        wake.notify_one();
}

void SerialQueue::State::runVisit(const std::function<void()> &job)
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
    const AlternateSignalStack signalStack;
    current = {this, &label};
    ownThread = currentSystemThread();
    nameThread(label);
    Batch batch;
    while (takeBatch(batch))
        batch.run();
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
    m_state->submit(std::move(job), nullptr);
}

void SerialQueue::async(DispatchGroup &group, Job job)
{
    group.enter();
    m_state->submit(std::move(job), &group);
}

void SerialQueue::sync(const std::function<void()> &job)
{
    Q_ASSERT_X(!isCurrent(), "SerialQueue::sync", "a queue cannot wait for itself");
    DispatchGroup done;
    async(done, [&job] { job(); });
    done.wait();
}

void SerialQueue::visit(const std::function<void()> &job)
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
