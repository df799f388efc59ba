#include "GlobalQueue.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <pthread.h>
#include <thread>

namespace
{

/// Never destroyed: a logger may still hand over work while the process ends.
class Workers
{
public:
    static Workers &shared()
    {
        static auto *const workers = new Workers;
        return *workers;
    }

    void add(Job job)
    {
        {
            const std::lock_guard lock(m_mutex);
            m_jobs.push_back(std::move(job));
        }
        m_wake.notify_one();
    }

private:
    Workers()
    {
        constexpr int threads = 2;
        for (int thread = 0; thread < threads; ++thread)
            std::thread([this] { run(); }).detach();
    }

    [[noreturn]] void run()
    {
        pthread_setname_np(pthread_self(), "log-files");
        for (;;) {
            Job job = next();
            job();
        }
    }

    Job next()
    {
        std::unique_lock lock(m_mutex);
        m_wake.wait(lock, [this] { return !m_jobs.empty(); });
        Job job = std::move(m_jobs.front());
        m_jobs.pop_front();
        return job;
    }

    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::deque<Job> m_jobs;
};

} // namespace

void GlobalQueue::async(Job job)
{
    Workers::shared().add(std::move(job));
}
