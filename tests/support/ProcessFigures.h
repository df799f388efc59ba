#pragma once

#include <QStringList>
#include <cstddef>

/// What this process holds of the kernel and of the heap, to tell whether it gives everything back.
namespace ProcessFigures
{

/// What the open descriptors point to, sorted: a path, or a kind such as "socket:".
QStringList descriptors();
int threads();
/// Bytes in use in all arenas; 0 under a sanitizer, which has a heap of its own.
std::size_t heap();

} // namespace ProcessFigures
