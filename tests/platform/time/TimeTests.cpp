#include "SystemTime.h"
#include "VirtualTime.h"

#include <QTest>
#include <atomic>
#include <future>
#include <thread>

using namespace std::chrono_literals;

class TimeTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void actionsRunInTheOrderTheyFallDue();
    void destroyedTimerRevokesAndFreesWhatItCaptured();
    void destroyingARunningTimerWaitsForTheAction();
    void anActionMayDestroyItsOwnTimer();
    void systemTimeEndsWithActionsPending();
    void virtualTimeMovesOnlyWhenTold();
    void virtualTimeWaitsForThreadsAtWork_data();
    void virtualTimeWaitsForThreadsAtWork();
};

void TimeTests::actionsRunInTheOrderTheyFallDue()
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

void TimeTests::destroyedTimerRevokesAndFreesWhatItCaptured()
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

void TimeTests::destroyingARunningTimerWaitsForTheAction()
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

void TimeTests::anActionMayDestroyItsOwnTimer()
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

void TimeTests::systemTimeEndsWithActionsPending()
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

void TimeTests::virtualTimeMovesOnlyWhenTold()
{
    VirtualTime time;
    const auto start = time.now();
    std::vector<TimePort::Duration> seen;
    const auto note = [&] { seen.push_back(std::chrono::duration_cast<TimePort::Duration>(time.now() - start)); };
    std::unique_ptr<TimePort::Timer> nested;
    const auto late = time.after(3s, note);
    const auto early = time.after(1s, [&] {
        note();
        nested = time.after(1s, note);
    });
    time.advance(999ms);
    QCOMPARE(seen.size(), 0u);
    time.advance(1500ms);
    QCOMPARE(seen, (std::vector<TimePort::Duration>{1s, 2s}));
    QVERIFY(time.advanceToNext());
    QCOMPARE(time.now() - start, TimePort::Duration(3s));
    QVERIFY(!time.advanceToNext());
}

void TimeTests::virtualTimeWaitsForThreadsAtWork_data()
{
    QTest::addColumn<int>("threads");
    QTest::addColumn<int>("work");
    QTest::newRow("one thread that computes") << 1 << 5;
    QTest::newRow("more threads than processors") << 12 << 5;
    QTest::newRow("threads that hand over quickly") << 12 << 0;
}

// A chain of threads, each woken by the one before it, stands for a reply on its way through product and peer; a
// two-hour deadline must not fall due before it is through, although a jump to it is allowed at any quiet moment.
void TimeTests::virtualTimeWaitsForThreadsAtWork()
{
    QFETCH(int, threads);
    QFETCH(int, work);
    for (int round = 0; round < 20; ++round) {
        VirtualTime time;
        std::atomic<bool> timedOut = false;
        std::atomic<bool> arrived = false;
        const auto deadline = time.after(2h, [&] { timedOut = true; });
        std::vector<std::promise<void>> batons(static_cast<std::size_t>(threads) + 1);
        std::vector<std::thread> chain;
        for (std::size_t link = 0; link + 1 < batons.size(); ++link) {
            chain.emplace_back([&, link] {
                time.sleep(1s);
                batons[link].get_future().wait();
                const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(work);
                while (std::chrono::steady_clock::now() < end) {
                }
                batons[link + 1].set_value();
            });
        }
        std::thread last([&] {
            batons.back().get_future().wait();
            arrived = !timedOut;
        });
        batons.front().set_value();
        const bool ended = time.runUntil([&] { return arrived || timedOut; }, {}, 30s);
        for (std::thread &thread : chain)
            thread.join();
        last.join();
        QVERIFY(ended);
        QVERIFY2(arrived, qPrintable(QStringLiteral("round %1").arg(round)));
    }
}

QTEST_GUILESS_MAIN(TimeTests)
#include "TimeTests.moc"
