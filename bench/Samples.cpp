#include "Samples.h"

#include <algorithm>
#include <sys/resource.h>
#include <utility>

namespace
{

constexpr double nanosecondsPerMicrosecond = 1000;

rusage usageOfThread()
{
    rusage usage{};
    getrusage(RUSAGE_THREAD, &usage);
    return usage;
}

} // namespace

Samples::Samples(std::size_t count)
    : m_durations(count)
{
    m_durations.clear();
}

void Samples::add(std::chrono::steady_clock::duration duration)
{
    // Asking the system takes as long as several calls, so only about those that may have been disturbed.
    constexpr auto suspicious = std::chrono::microseconds(20);
    m_durations.push_back(duration.count());
    if (duration < suspicious)
        return;
    const long preemptions = usageOfThread().ru_nivcsw;
    if (std::exchange(m_preemptions, preemptions) == preemptions)
        m_longestUndisturbed = std::max(m_longestUndisturbed, duration.count());
}

double Samples::longestUndisturbed() const
{
    return static_cast<double>(m_longestUndisturbed) / nanosecondsPerMicrosecond;
}

void Samples::beginStretch()
{
    m_waits -= usageOfThread().ru_nvcsw;
}

void Samples::endStretch()
{
    m_waits += usageOfThread().ru_nvcsw;
}

void Samples::sort()
{
    std::ranges::sort(m_durations);
}

double Samples::percentile(double share) const
{
    const auto index = static_cast<std::size_t>(share * static_cast<double>(m_durations.size() - 1));
    return static_cast<double>(m_durations[index]) / nanosecondsPerMicrosecond;
}
