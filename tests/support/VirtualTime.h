#pragma once

#include "DueActions.h"

#include <condition_variable>
#include <mutex>
#include <set>

/// A time port whose clock moves only when the test moves it, for tests in which real threads and real peers work.
///
/// `sleep` blocks its thread until the clock has reached the end of the pause. Due actions run on the thread that moves
/// the clock, under no lock, with the clock standing at their instant; one thread moves the clock.
class VirtualTime final : public TimePort
{
public:
    VirtualTime();
    /// Nobody sleeps any more by then.
    ~VirtualTime() override;

    Instant now() const override;
    void sleep(Duration duration) override;
    [[nodiscard]] std::unique_ptr<Timer> after(Duration delay, std::function<void()> action) override;

    /// Moves the clock by `duration`, stopping at each deadline on the way to run what is due. Threads that wake from
    /// their sleep are not waited for; where they matter, use `runUntil`.
    void advance(Duration duration);

    /// Runs the main thread's events, and moves the clock to the next deadline whenever nothing else can happen: no
    /// event is pending, `busy` (a peer that still owes something in real time; may be empty) says no, and all other
    /// threads of the process are asleep. So no time-out fires while an answer is still on its way, however slow the
    /// machine is. Work of other processes is seen through `busy` only.
    /// @param done ends the run. @param realLimit ends it as well, in real time.
    /// @return whether `done` said so.
    bool runUntil(const std::function<bool()> &done, const std::function<bool()> &busy,
                  std::chrono::milliseconds realLimit = std::chrono::seconds(60));

private:
    void moveTo(Instant instant);
    std::optional<Instant> nextDeadline() const;

    DueActions m_actions;
    mutable std::mutex m_mutex;
    std::condition_variable m_moved;
    Instant m_now;
    std::multiset<Instant> m_sleepers;
};
