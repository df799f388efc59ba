#include "MainThread.h"
#include "SerialQueue.h"

#include <QSemaphore>
#include <QTest>
#include <thread>
#include <unistd.h>
#include <vector>

using namespace Qt::Literals::StringLiterals;

class SerialQueueTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void runsJobsOfManyThreadsInTheirOrder()
    {
        constexpr int writers = 4, jobs = 2000;
        SerialQueue queue;
        std::vector<std::pair<int, int>> ran;
        std::vector<std::thread> threads;
        for (int writer = 0; writer < writers; ++writer) {
            threads.emplace_back([&, writer] {
                for (int job = 0; job < jobs; ++job)
                    queue.async([&, writer, job] { ran.emplace_back(writer, job); });
            });
        }
        for (std::thread &thread : threads)
            thread.join();
        queue.sync([] {});

        QCOMPARE(ran.size(), size_t{writers * jobs});
        std::array<int, writers> next{};
        for (const auto &[writer, job] : ran)
            QCOMPARE(job, next.at(static_cast<size_t>(writer))++);
    }

    void survivesItsEndOnItself()
    {
        QSemaphore ranBehind;
        auto queue = std::make_shared<SerialQueue>();
        queue->async([&, kept = queue]() mutable {
            kept->async([&] { ranBehind.release(); });
            kept.reset();
        });
        queue.reset();
        QVERIFY(ranBehind.tryAcquire(1, 5000));
    }

    void lendsItselfWhileItHasNothingToDo()
    {
        SerialQueue queue(u"lent"_s);
        QSemaphore ranBehind;
        queue.syncInPlace([&] {
            QVERIFY(queue.isCurrent() && queue.runsOnThread(gettid()));
            queue.async([&] { ranBehind.release(); });
            // Whoever runs a job in place keeps the queue's own thread from the next one.
            QVERIFY(!ranBehind.tryAcquire(1, 50));
        });
        QVERIFY(ranBehind.tryAcquire(1, 5000));
        QVERIFY(!queue.isCurrent() && !queue.runsOnThread(gettid()));

        for (int round = 0; round < 500; ++round) {
            QList<int> order;
            queue.async([&] { order.append(1); });
            queue.syncInPlace([&] { order.append(2); });
            QCOMPARE(order, QList<int>({1, 2}));
        }
    }

    void waitsForAGroupOverSeveralQueues()
    {
        std::array<SerialQueue, 3> queues;
        for (int round = 0; round < 500; ++round) {
            std::atomic<int> ran = 0;
            DispatchGroup group;
            for (SerialQueue &queue : queues)
                queue.async(group, [&] { ++ran; });
            group.wait();
            QCOMPARE(ran.load(), 3);
        }
    }

    void queuesForTheMainThread()
    {
        QThread *ranOn = nullptr;
        std::thread([&] { onMainThread([&] { ranOn = QThread::currentThread(); }); }).join();
        QVERIFY(!ranOn);
        QTRY_COMPARE(ranOn, thread());

        ranOn = nullptr;
        onMainThread([&] { ranOn = QThread::currentThread(); });
        QVERIFY2(!ranOn, "the main thread queues for itself as well");
        QTRY_COMPARE(ranOn, thread());
    }

    void dropsTheActionOfAGoneListener()
    {
        bool ran = false, ranAfter = false;
        auto listener = std::make_unique<QObject>();
        onMainThread(listener.get(), [&] { ran = true; });
        listener.reset();
        onMainThread([&] { ranAfter = true; });
        QTRY_VERIFY(ranAfter);
        QVERIFY(!ran);
    }
};

QTEST_GUILESS_MAIN(SerialQueueTests)
#include "SerialQueueTests.moc"
