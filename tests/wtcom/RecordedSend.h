#pragma once

#include "Locked.h"
#include "WTCUSBPrinter.h"

#include <QStringList>
#include <memory>

/// One send and everything its callbacks were told, as it came.
class RecordedSend
{
public:
    enum class HeadReaction {
        ReadAnnounced, ///< The data length of the header's bytes 6 and 7.
        ReadNone,
        Stop,
        Throw
    };

    struct Record {
        QStringList calls; ///< "head" and "data", in order.
        std::optional<QByteArray> header;
        std::optional<QByteArray> data;
        std::optional<WTError> error;
        bool onMainThread = false; ///< One of the callbacks was.
    };

    RecordedSend(const QString &URI, const QByteArray &frame, int timeout,
                 HeadReaction reaction = HeadReaction::ReadAnnounced);

    Record record() const
    {
        return m_record->read([](const Record &record) { return record; });
    }
    bool hasEnded() const { return record().calls.contains(QLatin1String("data")); }

private:
    const std::shared_ptr<Locked<Record>> m_record = std::make_shared<Locked<Record>>();
};
