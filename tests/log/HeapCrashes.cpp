#include "HeapCrashes.h"

#include "Log.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <malloc.h>
#include <memory>
#include <thread>
#include <utility>
#include <vector>

namespace
{

using namespace std::chrono_literals;

/// Beyond what the allocator keeps per thread, so that it takes the arena's lock.
constexpr std::size_t size = 5000;

// By way of a variable, so that the compiler does not see the faults.
void *(*volatile take)(std::size_t) = std::malloc;
void (*volatile giveBack)(void *) = std::free;
void *(*volatile fill)(void *, int, std::size_t) = std::memset;

void overwriteSmallFreed()
{
    // What the allocator keeps per thread, of a size that no part of a line has: other threads give those back.
    constexpr std::size_t smallSize = 968;
    void *first = take(smallSize), *second = take(smallSize);
    giveBack(second);
    giveBack(first);
    fill(first, 0x41, 8);
    take(smallSize);
    fill(take(smallSize), 0, smallSize);
}

void overflowIntoTop()
{
    // Of so many blocks that the holes of the heap are used up, the highest one borders on the unused rest. Other
    // threads give memory back meanwhile, which may suffice for a while before the rest is looked at.
    constexpr int count = 1000;
    void *highest = nullptr;
    for (int block = 0; block < count; ++block)
        highest = std::max(highest, take(size));
    fill(highest, 0xff, malloc_usable_size(highest) + 64);
    for (int block = 0; block < count; ++block)
        take(size);
}

void overflowIntoNext()
{
    // Other threads give memory back meanwhile, so one block need not border on the one before.
    char *first = static_cast<char *>(take(size)), *second = static_cast<char *>(take(size));
    while (second != first + malloc_usable_size(first) + sizeof(std::size_t))
        first = std::exchange(second, static_cast<char *>(take(size)));
    fill(first, 0x41, malloc_usable_size(first) + 64);
    giveBack(second);
    giveBack(first);
}

std::atomic<bool> isStopped = false, mayGoOn = false;

void standStill(int /*signal*/)
{
    isStopped = true;
    while (!mayGoOn) {
    }
    isStopped = false;
}

/// Whether a thread that frees a block of another thread's arena has to wait for it.
bool isArenaLocked(void *block)
{
    const auto isFreed = std::make_shared<std::atomic<bool>>(false);
    std::thread([block, isFreed] {
        giveBack(block);
        *isFreed = true;
    }).detach();
    std::this_thread::sleep_for(50ms);
    return !*isFreed;
}

/// Stops the calling thread again and again, until that happens inside the allocator; then crashes on another thread.
void crashWhileTheArenaIsHeld()
{
    std::signal(SIGUSR1, standStill);
    std::vector<void *> blocks(1000);
    for (void *&block : blocks) {
        block = take(size);
        take(16);
    }
    std::thread([victim = pthread_self(), blocks] {
        for (void *block : blocks) {
            mayGoOn = false;
            pthread_kill(victim, SIGUSR1);
            while (!isStopped)
                std::this_thread::yield();
            if (isArenaLocked(block))
                std::raise(SIGSEGV);
            mayGoOn = true;
            while (isStopped)
                std::this_thread::yield();
        }
    }).detach();
    for (;;)
        giveBack(take(size));
}

/// The crash while lines wait whose memory is this thread's.
std::function<void()> behindLines(void (*crash)())
{
    return [crash] {
        for (int number = 0; number < 200; ++number)
            logInfo("%@ %d", std::string(300, 'x').c_str(), number);
        crash();
    };
}

} // namespace

const std::map<std::string, std::function<void()>> heapCrashes{
    {"small-block-used-after-free", behindLines(overwriteSmallFreed)},
    {"overflow-into-top", behindLines(overflowIntoTop)},
    {"overflow-into-next", behindLines(overflowIntoNext)},
    {"arena-held-by-another-thread", behindLines(crashWhileTheArenaIsHeld)},
};
