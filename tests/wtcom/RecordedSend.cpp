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

RecordedSend::RecordedSend(const QString &URI, const QByteArray &frame, int timeout, HeadReaction reaction)
{
    WTCUSBPrinter::IOKit_sendACLWithURI(
        URI, frame, kACLHeadSize, timeout,
        [kept = m_record, reaction](const std::optional<QByteArray> &header, quint32 *dataLength, bool *stop) {
            kept->change([&](Record &record) {
                record.calls += u"head"_s;
                record.header = header;
                record.onMainThread |= isOnMainThread();
            });
            if (reaction == HeadReaction::Throw)
                throw std::runtime_error("head");
            *stop = reaction == HeadReaction::Stop;
            if (reaction == HeadReaction::ReadAnnounced && header && header->size() == kACLHeadSize)
                *dataLength = qFromBigEndian<quint16>(header->constData() + 6);
        },
        [kept = m_record](const std::optional<QByteArray> &data, const std::optional<WTError> &error) {
            kept->change([&](Record &record) {
                record.calls += u"data"_s;
                record.data = data;
                record.error = error;
                record.onMainThread |= isOnMainThread();
            });
        });
}
