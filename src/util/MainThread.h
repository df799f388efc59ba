#pragma once

#include <functional>

class QObject;

/// Queues `action` on the main thread's event loop and returns. Any thread. Dropped when the application object is
/// gone.
void onMainThread(std::function<void()> action);

/// The same with a listener: dropped when `context` (an object of the main thread) is destroyed first.
void onMainThread(QObject *context, std::function<void()> action);
