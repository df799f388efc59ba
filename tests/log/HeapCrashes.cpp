#include "HeapCrashes.h"

#include "Log.h"

#include <array>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <malloc.h>
#include <memory>
#include <thread>
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
    void *first = take(64), *second = take(64);
    giveBack(second);
    giveBack(first);
    fill(first, 0x41, 8);
    take(64);
    fill(take(64), 0, 64);
}

/// Two blocks one behind the other: after so many that the holes of the heap are used up, the last one borders on the
/// unused rest.
std::array<void *, 2> neighbours()
{
    std::array<void *, 2> last{};
    for (std::size_t block = 0; block < 100; ++block)
        last[block % last.size()] = take(size);
    return last;
}

void overflowIntoTop()
{
    void *const block = neighbours()[1];
    fill(block, 0xff, malloc_usable_size(block) + 64);
    take(20 * size);
}

void overflowIntoNext()
{
    const auto blocks = neighbours();
    fill(blocks[0], 0x41, malloc_usable_size(blocks[0]) + 64);
    giveBack(blocks[1]);
    giveBack(blocks[0]);
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
