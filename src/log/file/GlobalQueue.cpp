#include "GlobalQueue.h"

#include <QThreadPool>

void GlobalQueue::async(SerialQueue::Job job)
{
    // Never destroyed: a logger may still hand over work while the process ends.
    static auto *const pool = new QThreadPool;
    pool->start(std::move(job));
}
