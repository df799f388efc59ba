#include "GlibPointer.h"

#include "NetworkThread.h"

#include "AlternateSignalStack.h"

#include <deque>
#include <mutex>
#include <thread>
#include <utility>

struct NetworkThread::State {
    State()
        : context(g_main_context_new())
        , loop(g_main_loop_new(context.get(), FALSE))
    {
    }

    static gboolean runJobs(gpointer state);
    void wake();
    void run();

    GlibPointer<GMainContext> context;
    GlibPointer<GMainLoop> loop;
    std::mutex mutex;
    std::deque<Job> jobs;
    bool ending = false;
    std::thread thread;
};

gboolean NetworkThread::State::runJobs(gpointer data)
{
    auto *state = static_cast<State *>(data);
    std::deque<Job> jobs;
    {
        const std::lock_guard lock(state->mutex);
        if (state->ending)
            g_main_loop_quit(state->loop.get());
        else
            jobs.swap(state->jobs);
    }
    for (const Job &job : jobs)
        job();
    return G_SOURCE_REMOVE;
}

void NetworkThread::State::wake()
{
    GSource *source = g_idle_source_new();
    g_source_set_priority(source, G_PRIORITY_DEFAULT);
    g_source_set_callback(source, &State::runJobs, this, nullptr);
    g_source_attach(source, context.get());
    g_source_unref(source);
}

void NetworkThread::State::run()
{
    const AlternateSignalStack signalStack;
    g_main_context_push_thread_default(context.get());
    g_main_loop_run(loop.get());
    g_main_context_pop_thread_default(context.get());
}

NetworkThread::NetworkThread()
    : m_state(std::make_unique<State>())
{
    m_state->thread = std::thread([state = m_state.get()] { state->run(); });
}

NetworkThread::~NetworkThread()
{
    {
        const std::lock_guard lock(m_state->mutex);
        m_state->ending = true;
        m_state->jobs.clear();
    }
    m_state->wake();
    m_state->thread.join();
}

void NetworkThread::post(Job job)
{
    {
        const std::lock_guard lock(m_state->mutex);
        m_state->jobs.push_back(std::move(job));
    }
    m_state->wake();
}
