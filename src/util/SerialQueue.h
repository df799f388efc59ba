#pragma once

#include "Job.h"

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

/// Runs jobs one after the other, in the order they were given: on a thread of its own, or, where someone waits for a
/// job and nothing is ahead of it, on the thread that waits. All operations may be called on any thread. The destructor
/// runs what is still queued and then ends the thread; a queue may be destroyed on itself, it then ends behind the
/// running job.
class SerialQueue
{
public:
    explicit SerialQueue(const QString &label = {});
    ~SerialQueue();
    SerialQueue(const SerialQueue &) = delete;
    SerialQueue &operator=(const SerialQueue &) = delete;

    QString label() const;
    void async(Job job);
    /// The same, as part of a group: entered now, left when the job has run.
    void async(DispatchGroup &group, Job job);
    /// Blocks until `job` has run. Must not be called on the queue itself.
    void sync(const std::function<void()> &job);
    /// The same, but an idle queue lends itself to the calling thread, which then runs the job without a change of
    /// threads.
    void visit(const std::function<void()> &job);
    bool isCurrent() const;
    /// Whether the thread with this system identifier (gettid) is the queue's own, or runs a job of the queue.
    bool runsOnThread(qint64 systemThread) const;
    /// The label of the queue whose job the caller runs, "main" on the main thread of the application, else empty.
    static QString currentLabel();

private:
    struct State;
    std::shared_ptr<State> m_state;
};
