#include "MainThread.h"

#include <QCoreApplication>
#include <QTest>
#include <atomic>
#include <thread>

/// Posts to the main thread from another one.
class MainThreadTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void outlivesTheApplicationObject()
    {
        std::atomic<bool> ends = false;
        std::atomic<int> ran = 0;
        int count = 0;
        std::thread poster([&] {
            while (!ends)
                onMainThread([&ran] { ++ran; });
        });
        for (int application = 0; application < 20; ++application) {
            int argc = 0;
            const QCoreApplication object(argc, nullptr);
            const int before = ran;
            QTRY_VERIFY(ran > before);
            count = ran;
        }
        ends = true;
        poster.join();
        QCOMPARE_GE(ran.load(), count);
        QCoreApplication::sendPostedEvents();
        const int last = ran;
        onMainThread([&ran] { ++ran; });
        QCoreApplication::sendPostedEvents();
        QCOMPARE(ran.load(), last);
    }
};

QTEST_APPLESS_MAIN(MainThreadTests)
#include "MainThreadTests.moc"
