#pragma once

#include "SerialQueue.h"

/// What nobody waits for: old files are pruned, managers and those who asked for a roll are told, and the memory of
/// delivered messages goes back to where their callers took it.
namespace GlobalQueue
{

/// Queues `job` on a thread that the whole log shares, and returns. Any thread.
inline void async(SerialQueue::Job job)
{
    // Never destroyed: a logger may still hand over work while the process ends.
    static auto *const queue = new SerialQueue(QStringLiteral("log-files"));
    queue->async(std::move(job));
}

} // namespace GlobalQueue
