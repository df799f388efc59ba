#include "MainThread.h"

#include <QCoreApplication>
#include <utility>

void onMainThread(std::function<void()> action)
{
    if (auto *application = QCoreApplication::instance())
        onMainThread(application, std::move(action));
}

void onMainThread(QObject *context, std::function<void()> action)
{
    QMetaObject::invokeMethod(context, std::move(action), Qt::QueuedConnection);
}
