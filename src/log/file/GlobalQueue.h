#pragma once

#include "Job.h"

/// Work that needs no order among itself and no thread of its own.
namespace GlobalQueue
{

/// Queues `job` on one of a few shared threads and returns. Any thread.
void async(Job job);

} // namespace GlobalQueue
