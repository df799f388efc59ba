#pragma once

#include <functional>
#include <map>
#include <string>

/// Ways to crash inside the allocator, where the thread that crashes keeps the lock of its arena for ever.
extern const std::map<std::string, std::function<void()>> heapCrashes;
