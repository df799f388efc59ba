#pragma once

#include <cstddef>
#include <cstdlib>

/// How often something is measured: `many` times, but once when WT_BENCH_SMOKE is set. Such a run only
/// shows that the page still comes to its end.
inline std::size_t timesToRepeat(std::size_t many)
{
    return std::getenv("WT_BENCH_SMOKE") ? 1 : many;
}
