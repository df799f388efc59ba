#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdlib>

/// How often something is measured: `many` times, but no more than three when WT_BENCH_SMOKE is set. Such a run only
/// shows that the page still comes to its end.
inline std::size_t timesToRepeat(std::size_t many)
{
    return std::getenv("WT_BENCH_SMOKE") ? std::min<std::size_t>(many, 3) : many;
}
