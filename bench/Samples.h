#pragma once

#include <chrono>
#include <vector>

/// Durations of single calls, in nanoseconds.
class Samples
{
public:
    /// Room for all samples is taken, and touched, before the first.
    explicit Samples(std::size_t count);

    template <typename Call>
    void measure(const Call &call)
    {
        const auto start = std::chrono::steady_clock::now();
        call();
        add(std::chrono::steady_clock::now() - start);
    }

    /// Begins and ends a stretch of calls whose waits count.
    void beginStretch();
    void endStretch();
    /// How often the calls of all stretches made their thread wait for another: for a lock, or for room in a queue.
    long waits() const { return m_waits; }

    /// The longest call, in microseconds, during which the system did not give the processor to somebody else.
    double longestUndisturbed() const;

    /// After the last sample.
    void sort();
    /// `share` of the samples, from 0 to 1, were not longer; in microseconds. Needs sorted samples.
    double percentile(double share) const;

private:
    void add(std::chrono::steady_clock::duration duration);

    std::vector<std::chrono::nanoseconds::rep> m_durations;
    long m_waits = 0;
    long m_preemptions = 0;
    std::chrono::nanoseconds::rep m_longestUndisturbed = 0;
};
