#pragma once

#include "WTFileLogMessageSerializer.h"

/// The text in UTF-8.
class WTFileLogPlainTextMessageSerializer : public WTFileLogMessageSerializer
{
public:
    QByteArray dataForString(const QString &string, const WTLogMessage * /*message*/) const override
    {
        return string.toUtf8();
    }
};
