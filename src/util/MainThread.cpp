#include "MainThread.h"

#include <QCoreApplication>
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

void setReceiver(QObject *application)
{
    const std::lock_guard lock(receiver().mutex);
    receiver().application = application;
}

void closeMainThread()
{
    setReceiver(nullptr);
}

/// Runs when an application object is made; the routine it leaves behind, first of all when that is destroyed.
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
    QMetaObject::invokeMethod(context, std::move(action), Qt::QueuedConnection);
}
