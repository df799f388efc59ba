#pragma once

#include "WTLogFormatting.h"
#include "WTLogMessage.h"

#include <functional>

/// Date and text, two spaces apart.
class WTLogFileFormatterDefault : public WTLogFormatting
{
public:
    using DateFormatter = std::function<QString(WTLogMessage::Date)>;

    /// Without a date formatter: "2026/11/22 22:10:34:123" in UTC.
    explicit WTLogFileFormatterDefault(DateFormatter dateFormatter = {});

    std::optional<QString> formatLogMessage(const WTLogMessage &message) override;

private:
    const DateFormatter m_dateFormatter;
};
