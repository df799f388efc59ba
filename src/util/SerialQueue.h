#pragma once

#include <QString>
#include <condition_variable>
#include <cstddef>
#include <functional>
#include <memory>
#include <mutex>

/// Counts work that is under way somewhere, so that one thread can wait for all of it.
class DispatchGroup
{
public:
    void enter();
    void leave();
    /// Blocks until as many `leave` as `enter` calls were made.
    void wait();

private:
    std::mutex m_mutex;
    std::condition_variable m_idle;
    std::size_t m_count = 0;
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
    /// The same, as part of a group: entered now, left when the job has run.
    void async(DispatchGroup &group, Job job);
    /// Blocks until `job` has run. Must not be called on the queue itself.
    void sync(const Job &job);
    bool isCurrent() const;
    /// Whether the queue's thread is the one with this system thread identifier (gettid).
    bool runsOnThread(qint64 systemThread) const;
    /// The label of the queue the caller runs on, "main" on the main thread of the application, else empty.
    static QString currentLabel();

private:
    struct State;
    std::shared_ptr<State> m_state;
};
