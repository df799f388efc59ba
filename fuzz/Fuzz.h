#pragma once

#include <QByteArrayView>
#include <cstdint>
#include <utility>

/// A fuzz target: one call per input, with everything that it promises checked. Main thread.
///
/// libFuzzer calls it with the inputs that it makes up; `replay.cpp` with those that are kept.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size);

namespace Fuzz
{

/// Ends the process with `promise` on standard error, so that the input is kept as a finding, unless `holds`.
void require(bool holds, const char *promise);

inline QByteArrayView view(const std::uint8_t *bytes, std::size_t size)
{
    return {bytes, static_cast<qsizetype>(size)};
}

/// What stands before the first `separator` and what stands behind it; everything and nothing without one.
std::pair<QByteArrayView, QByteArrayView> splitAt(QByteArrayView bytes, char separator);

/// Cuts one byte off the front; 0 when there is none.
std::uint8_t takeByte(QByteArrayView &bytes);

} // namespace Fuzz
