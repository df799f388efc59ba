#pragma once

#include "DescriptorSource.h"

/// Watches an open log file, and runs an action on a queue when the file is deleted or moved away. Does not wait when
/// the system has no more watches to give.
std::unique_ptr<DescriptorSource> watchLogFile(int logFile, std::shared_ptr<SerialQueue> queue,
                                               DescriptorSource::Action onGone);
