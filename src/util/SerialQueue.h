#pragma once

#include <QString>
#include <atomic>
#include <functional>
#include <memory>

/// Counts work that is under way somewhere, so that one thread can wait for all of it.
class DispatchGroup
{
public:
    void enter();
    void leave();
    /// Blocks until as many `leave` as `enter` calls were made.
    void wait();

private:
    std::atomic<int> m_count = 0;
};

/// Runs jobs one after the other, in the order they were given, on a thread of its own. All operations may be called on
/// any thread. The destructor runs what is still queued and then ends the thread; a queue may be destroyed on itself,
/// it then ends behind the running job.
class SerialQueue
{
public:
    using Job = std::function<void()>;

    explicit SerialQueue(const QString &label = {});
    ~SerialQueue();
    SerialQueue(const SerialQueue &) = delete;
    SerialQueue &operator=(const SerialQueue &) = delete;

    QString label() const;
    void async(Job job);
    /// The same, as part of a group: entered now, left when the job has run and what it holds is gone.
    void async(DispatchGroup &group, Job job);
    /// Blocks until `job` has run. Must not be called on the queue itself.
    void sync(const Job &job);
    /// The same, but a queue with nothing to do lends itself to the caller, who runs `job` without waking its thread.
    void syncInPlace(const Job &job);
    bool isCurrent() const;
    /// Whether the queue's jobs run on the thread with this system identifier (gettid): on the queue's own thread, or
    /// on the one that runs a job in place at the moment.
    bool runsOnThread(qint64 systemThread) const;
    /// How many jobs have run: a number that stays the same says that the queue is idle or stands still.
    quint64 jobsRun() const;
    /// The label of the queue whose job the caller runs, "main" on the main thread of the application, else empty.
    static QString currentLabel();

private:
    struct State;
    void submit(Job &&job, DispatchGroup *group);

    const std::shared_ptr<State> m_state;
};
