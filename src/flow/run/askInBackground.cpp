#include "askInBackground.h"

#include "SerialQueue.h"

#include <atomic>

namespace
{

std::atomic<int> pending = 0;

} // namespace

void runInBackground(std::function<void()> action)
{
    static SerialQueue *const queue = new SerialQueue{QStringLiteral("background questions")};
    ++pending;
    queue->async([action = std::move(action)] {
        action();
        --pending;
    });
}

bool isBackgroundIdle()
{
    return pending == 0;
}
