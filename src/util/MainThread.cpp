#include "MainThread.h"

#include <QCoreApplication>
#include <atomic>
#include <mutex>
#include <utility>

namespace
{

/// The application object for as long as it takes posts. A post holds the lock, so that the object cannot go meanwhile.
struct Receiver {
    std::mutex mutex;
    QObject *application = nullptr;
};

/// Never destroyed: threads may post until the process ends.
Receiver &receiver()
{
    static auto *const shared = new Receiver;
    return *shared;
}

/// An action on its way from one thread to the main thread. Qt's event queue passes it on under a lock, so this is safe
/// by itself; but ThreadSanitizer does not see the locks of a library that was built without it, and would report a
/// race. The atomic `token` tells it the order: it is changed after the action was written or used, and read before it
/// is used or destroyed: the posting thread may be the last to let go of the event.
class Handover
{
public:
    explicit Handover(std::function<void()> action)
        : m_action(std::move(action))
    {
    }
    /// The event is made by moving the caller's object: nothing writes to the action after that.
    Handover(Handover &&other) noexcept
        : m_action(std::move(other.m_action))
    {
        token.fetch_add(1, std::memory_order_release);
    }
    Handover(const Handover &) = delete;
    Handover &operator=(const Handover &) = delete;
    ~Handover() { token.load(std::memory_order_acquire); }

    void operator()() const
    {
        token.load(std::memory_order_acquire);
        m_action();
        token.fetch_add(1, std::memory_order_release);
    }

private:
    inline static std::atomic<unsigned> token = 0;
    std::function<void()> m_action;
};

void setReceiver(QObject *application)
{
    const std::lock_guard lock(receiver().mutex);
    receiver().application = application;
}

void closeMainThread()
{
    setReceiver(nullptr);
}

/// Runs when an application object is made. Qt runs `closeMainThread` at the beginning of that object's destruction.
void openMainThread()
{
    setReceiver(QCoreApplication::instance());
    qAddPostRoutine(closeMainThread);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(openMainThread)

void onMainThread(std::function<void()> action)
{
    const std::lock_guard lock(receiver().mutex);
    if (receiver().application)
        onMainThread(receiver().application, std::move(action));
}

void onMainThread(QObject *context, std::function<void()> action)
{
    QMetaObject::invokeMethod(context, Handover(std::move(action)), Qt::QueuedConnection);
}
