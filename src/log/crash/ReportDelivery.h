#pragma once

#include "WTLoggerNode.h"

#include <vector>

/// Takes the report of a crash to the loggers, although any thread of the log may stand still for ever: the thread that
/// crashed may be the logging queue's or a logger's own, or one of these may wait for a lock that the crashed thread
/// holds. A queue that stands still is passed over.
namespace ReportDelivery
{

/// Returns when every logger that admits the message has written it, or cannot be reached any more. `crashedThread` is
/// the system's identifier of the thread that waits for the report.
void deliver(const std::vector<WTLoggerNode> &loggers, const WTLogMessage &report, qint64 crashedThread);

} // namespace ReportDelivery
