#include "UsbipMessages.h"

#include <QtEndian>
#include <cerrno>

namespace UsbipMessages
{
namespace
{
enum Command : quint32 { Submit = 1, Unlink, SubmitReply, UnlinkReply };
enum Offset : qsizetype {
    SequenceAt = 4,
    DirectionAt = 12,
    EndpointAt = 16,
    UnlinkedAt = 20,
    LengthAt = 24,
    SetupAt = 40,
    StatusAt = 20,
    ActualLengthAt = 24
};

quint32 number(QByteArrayView header, Offset offset)
{
    return qFromBigEndian<quint32>(header.data() + offset);
}

void put(QByteArray &header, qsizetype offset, quint32 value)
{
    qToBigEndian(value, header.data() + offset);
}

QByteArray reply(Command command, quint32 sequence, int status, qsizetype length)
{
    QByteArray header(headerSize, '\0');
    put(header, 0, command);
    put(header, SequenceAt, sequence);
    put(header, StatusAt, static_cast<quint32>(status));
    put(header, ActualLengthAt, static_cast<quint32>(length));
    return header;
}
} // namespace

Request Request::parse(QByteArrayView header)
{
    Request request;
    request.isUnlink = number(header, static_cast<Offset>(0)) == Unlink;
    request.sequence = number(header, SequenceAt);
    request.isIn = number(header, DirectionAt) == 1;
    request.endpoint = static_cast<quint8>(number(header, EndpointAt));
    if (request.isUnlink) {
        request.unlinked = number(header, UnlinkedAt);
    } else {
        request.length = number(header, LengthAt);
        request.setup = header.sliced(SetupAt, 8).toByteArray();
    }
    return request;
}

QByteArray received(quint32 sequence, int status, const QByteArray &data)
{
    return reply(SubmitReply, sequence, status, data.size()) + data;
}

QByteArray sent(quint32 sequence, int status, qsizetype length)
{
    return reply(SubmitReply, sequence, status, length);
}

QByteArray unlinked(quint32 sequence, bool wasPending)
{
    return reply(UnlinkReply, sequence, wasPending ? -ECONNRESET : 0, 0);
}
} // namespace UsbipMessages
