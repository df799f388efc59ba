#include "OnMainThreadAfter.h"

#include "MainThread.h"

namespace
{

/// Revokes an action that was posted but has not run yet: the post holds the token weakly.
class PostedTimer : public TimePort::Timer
{
public:
    PostedTimer(TimePort &time, TimePort::Duration delay, std::function<void()> action)
        : m_timer(time.after(delay, [token = std::weak_ptr(m_token), action = std::move(action)] {
            onMainThread([token, action] {
                if (!token.expired())
                    action();
            });
        }))
    {
    }

private:
    std::shared_ptr<char> m_token = std::make_shared<char>();
    std::unique_ptr<TimePort::Timer> m_timer;
};

} // namespace

std::unique_ptr<TimePort::Timer> onMainThreadAfter(TimePort &time, TimePort::Duration delay,
                                                   std::function<void()> action)
{
    return std::make_unique<PostedTimer>(time, delay, std::move(action));
}
