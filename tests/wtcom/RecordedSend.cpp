#include "RecordedSend.h"

#include <QCoreApplication>
#include <QThread>
#include <QtEndian>
#include <stdexcept>

using namespace Qt::Literals::StringLiterals;

namespace
{

bool isOnMainThread()
{
    return QThread::currentThread() == QCoreApplication::instance()->thread();
}

} // namespace

RecordedSend::RecordedSend(const QString &URI, const QByteArray &frame, int timeout, HeadReaction reaction,
                           bool dataCallbackThrows)
{
    WTCUSBPrinter::IOKit_sendACLWithURI(
        URI, frame, kACLHeadSize, timeout,
        [state = m_state, reaction](const std::optional<QByteArray> &header, quint32 *dataLength, bool *stop) {
            const std::lock_guard lock(state->mutex);
            state->record.calls += u"head"_s;
            state->record.header = header;
            state->record.onMainThread |= isOnMainThread();
            if (reaction == HeadReaction::Throw)
                throw std::runtime_error("head");
            *stop = reaction == HeadReaction::Stop;
            if (reaction == HeadReaction::ReadAnnounced && header && header->size() == kACLHeadSize)
                *dataLength = qFromBigEndian<quint16>(header->constData() + 6);
        },
        [state = m_state, dataCallbackThrows](const std::optional<QByteArray> &data,
                                              const std::optional<WTError> &error) {
            const std::lock_guard lock(state->mutex);
            state->record.calls += u"data"_s;
            state->record.data = data;
            state->record.error = error;
            state->record.onMainThread |= isOnMainThread();
            if (dataCallbackThrows)
                throw std::runtime_error("data");
        });
}

RecordedSend::Record RecordedSend::record() const
{
    const std::lock_guard lock(m_state->mutex);
    return m_state->record;
}
