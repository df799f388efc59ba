#pragma once

#include "SystemTime.h"

/// The computer's clock, some times faster: everything that waits by it waits so much shorter.
class FasterTime final : public TimePort
{
public:
    explicit FasterTime(int speed);

    Instant now() const override;
    void sleep(Duration duration) override;
    [[nodiscard]] std::unique_ptr<Timer> after(Duration delay, std::function<void()> action) override;

private:
    const int m_speed;
    SystemTime m_time;
    const Instant m_start;
};
