#include "RollingTimer.h"

#include <algorithm>
#include <cmath>
#include <ctime>
#include <sys/timerfd.h>

namespace
{

FileDescriptor timerDueIn(double interval)
{
    constexpr double longestInterval = 9223372036;
    constexpr long nanosecondsPerSecond = 1000000000;
    itimerspec due{};
    clock_gettime(CLOCK_REALTIME, &due.it_value);
    const double bounded = std::clamp(interval, 0.0, longestInterval);
    due.it_value.tv_sec += static_cast<time_t>(bounded);
    due.it_value.tv_nsec += static_cast<long>((bounded - std::floor(bounded)) * nanosecondsPerSecond);
    if (due.it_value.tv_nsec >= nanosecondsPerSecond) {
        due.it_value.tv_nsec -= nanosecondsPerSecond;
        ++due.it_value.tv_sec;
    }
    FileDescriptor timer(timerfd_create(CLOCK_REALTIME, TFD_NONBLOCK | TFD_CLOEXEC));
    timerfd_settime(timer.get(), TFD_TIMER_ABSTIME, &due, nullptr);
    return timer;
}

bool takeExpiration(int timer)
{
    quint64 expirations = 0;
    return read(timer, &expirations, sizeof expirations) == sizeof expirations;
}

} // namespace

std::unique_ptr<DescriptorSource> startRollingTimer(double interval, std::shared_ptr<SerialQueue> queue,
                                                    DescriptorSource::Action onDue)
{
    return std::make_unique<DescriptorSource>(timerDueIn(interval), takeExpiration, std::move(queue), std::move(onDue));
}
