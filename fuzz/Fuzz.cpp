#include "Fuzz.h"

#include <cstdio>
#include <cstdlib>

void Fuzz::require(bool holds, const char *promise)
{
    if (holds)
        return;
    std::fprintf(stderr, "broken promise: %s\n", promise);
    std::abort();
}

std::pair<QByteArrayView, QByteArrayView> Fuzz::splitAt(QByteArrayView bytes, char separator)
{
    const qsizetype place = bytes.indexOf(separator);
    if (place < 0)
        return {bytes, {}};
    return {bytes.first(place), bytes.sliced(place + 1)};
}

std::uint8_t Fuzz::takeByte(QByteArrayView &bytes)
{
    if (bytes.isEmpty())
        return 0;
    const auto byte = static_cast<std::uint8_t>(bytes.front());
    bytes = bytes.sliced(1);
    return byte;
}
