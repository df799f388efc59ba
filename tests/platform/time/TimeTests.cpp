#include "Rows.h"
#include "SystemTime.h"

#include <atomic>
#include <future>
#include <thread>

using namespace std::chrono_literals;

class TimeTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void actionsRunInTheOrderTheyFallDue()
    {
        SystemTime time;
        std::promise<void> last;
        QByteArray order;
        const auto start = time.now();
        const auto third = time.after(40ms, [&] {
            order += 'c';
            last.set_value();
        });
        const auto second = time.after(20ms, [&] { order += 'b'; });
        const auto first = time.after(0ms, [&] { order += 'a'; });
        last.get_future().wait();
        QVERIFY(time.now() - start >= 40ms);
        QCOMPARE(order, QByteArray("abc"));
    }

    void destroyedTimerRevokesAndFreesWhatItCaptured()
    {
        SystemTime time;
        auto captured = std::make_shared<int>();
        std::atomic<bool> revokedRan = false;
        auto revoked = time.after(10ms, [&revokedRan, captured] { revokedRan = true; });
        std::promise<void> later;
        const auto witness = time.after(30ms, [&] { later.set_value(); });
        revoked.reset();
        QCOMPARE(captured.use_count(), 1);
        later.get_future().wait();
        QVERIFY(!revokedRan);
    }

    void destroyingARunningTimerWaitsForTheAction()
    {
        SystemTime time;
        std::promise<void> started;
        std::atomic<bool> ended = false;
        auto captured = std::make_shared<int>();
        auto timer = time.after(0ms, [&, captured] {
            started.set_value();
            std::this_thread::sleep_for(20ms);
            ended = true;
        });
        started.get_future().wait();
        timer.reset();
        QVERIFY(ended);
        QCOMPARE(captured.use_count(), 1);
    }

    void anActionMayDestroyItsOwnTimer()
    {
        SystemTime time;
        std::promise<void> done;
        std::mutex mutex;
        std::unique_ptr<TimePort::Timer> timer;
        {
            const std::lock_guard lock(mutex);
            timer = time.after(0ms, [&] {
                const std::lock_guard timerIsStored(mutex);
                timer.reset();
                done.set_value();
            });
        }
        QCOMPARE(done.get_future().wait_for(5s), std::future_status::ready);
    }

    void systemTimeEndsWithActionsPending()
    {
        std::unique_ptr<TimePort::Timer> timer;
        std::atomic<bool> ran = false;
        {
            SystemTime time;
            timer = time.after(1h, [&] { ran = true; });
        }
        timer.reset();
        QVERIFY(!ran);
    }
};

QTEST_GUILESS_MAIN(TimeTests)
#include "TimeTests.moc"
