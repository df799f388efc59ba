#include "HeapCrashes.h"

#include "Log.h"

#include <cstdlib>
#include <cstring>
#include <malloc.h>

namespace
{

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

void overflowIntoTop()
{
    // After so many blocks that the holes of the heap are used up, the last one borders on the unused rest.
    void *block = nullptr;
    for (int count = 0; count < 99; ++count)
        block = take(size);
    fill(block, 0xff, malloc_usable_size(block) + 64);
    take(20 * size);
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
};
