#include "LocalTime.h"

#include "TextFormat.h"

#include <array>
#include <ctime>

using namespace std::chrono;

QString localTimeText(sys_seconds moment, const char *strftimeFormat)
{
    const std::time_t time = moment.time_since_epoch().count();
    std::tm fields{};
    localtime_r(&time, &fields);
    std::array<char, 128> text{};
    const std::size_t length = std::strftime(text.data(), text.size(), strftimeFormat, &fields);
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(length));
}

QString localTimeInMilliseconds(system_clock::time_point moment)
{
    const auto milliseconds = duration_cast<std::chrono::milliseconds>(moment - floor<seconds>(moment));
    return formatText(u"%@.%03d", {localTimeText(floor<seconds>(moment), "%Y-%m-%d %H:%M:%S"), milliseconds.count()});
}
