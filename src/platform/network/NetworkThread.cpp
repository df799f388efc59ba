#include "NetworkThread.h"

#include "AlternateSignalStack.h"
#include "GlibPointer.h"

#include <atomic>
#include <thread>
#include <utility>

struct NetworkThread::State {
    State()
        : context(g_main_context_new())
        , loop(g_main_loop_new(context.get(), FALSE))
    {
    }

    void attach(int priority, Job job) const;
    void run() const;

    const GlibPointer<GMainContext> context; ///< Queues the jobs; what is left goes with it.
    const GlibPointer<GMainLoop> loop;
    std::thread thread;
};

namespace
{

/// Orders a job's making before its run. GLib's own lock does so, too, but ThreadSanitizer does not see that one.
std::atomic<unsigned> handedOver = 0;

} // namespace

void NetworkThread::State::attach(int priority, Job job) const
{
    const GlibPointer<GSource> source(g_idle_source_new());
    g_source_set_priority(source.get(), priority);
    g_source_set_callback(
        source.get(),
        [](gpointer data) -> gboolean {
            static_cast<void>(handedOver.load());
            (*static_cast<Job *>(data))();
            return G_SOURCE_REMOVE;
        },
        new Job(std::move(job)), [](gpointer data) { delete static_cast<Job *>(data); });
    ++handedOver;
    g_source_attach(source.get(), context.get());
}

void NetworkThread::State::run() const
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
    // Not from here: a loop that has not begun to run yet would not notice.
    m_state->attach(G_PRIORITY_HIGH, [loop = m_state->loop.get()] { g_main_loop_quit(loop); });
    m_state->thread.join();
}

void NetworkThread::post(Job job)
{
    m_state->attach(G_PRIORITY_DEFAULT, std::move(job));
}
