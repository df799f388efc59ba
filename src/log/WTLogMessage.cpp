#include "WTLogMessage.h"

#include "SerialQueue.h"

#include <QHash>
#include <pthread.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace
{

/// Plain data, so that a thread can still log while it ends and its other thread-local objects are gone.
struct ThreadFacts {
    ThreadFacts() { pthread_getname_np(pthread_self(), name.data(), name.size()); }

    pid_t identifier = gettid();
    std::array<char, 16> name{};
};

} // namespace

WTLogMessage::Caller WTLogMessage::Caller::current()
{
    // Asked once per thread: a thread has its name before it logs, and each question is a call of the system.
    thread_local const ThreadFacts facts;
    return {facts.identifier, facts.name, SerialQueue::currentLabel()};
}

WTLogMessage WTLogMessage::initWithFormat(const QString &format, const QString &formatted, quint64 level, quint64 flag,
                                          qint64 context, const Place &place, const QVariant &tag, quint64 options,
                                          std::optional<Date> timestamp)
{
    WTLogMessage made;
    made.m_message = formatted;
    made.m_messageFormat = format;
    made.m_level = level;
    made.m_flag = flag;
    made.m_context = context;
    made.m_place = place;
    made.m_tag = tag;
    made.m_options = options;
    made.m_timestamp = timestamp.value_or(std::chrono::system_clock::now());
    made.m_caller = Caller::current();
    return made;
}

WTLogMessage WTLogMessage::initWithFormat(const QString &format, std::initializer_list<FormatArgument> args,
                                          quint64 level, quint64 flag, qint64 context, const Place &place,
                                          const QVariant &tag, quint64 options, std::optional<Date> timestamp)
{
    return initWithFormat(format, formatText(format, args), level, flag, context, place, tag,
                          options | WTLogMessageDontCopyMessage, timestamp);
}

WTLogMessage WTLogMessage::initWithMessage(const QString &message, quint64 level, quint64 flag, qint64 context,
                                           const Place &place, const QVariant &tag, quint64 options,
                                           std::optional<Date> timestamp)
{
    return initWithFormat(message, message, level, flag, context, place, tag, options, timestamp);
}

WTLogMessage WTLogMessage::spokenBy(const Caller &caller) const
{
    WTLogMessage same = *this;
    same.m_caller = caller;
    return same;
}

QString WTLogMessage::fileName() const
{
    const QByteArray name = m_place.file.sliced(m_place.file.lastIndexOf('/') + 1);
    const qsizetype dot = name.lastIndexOf('.');
    return QString::fromUtf8(dot < 0 ? name : name.first(dot));
}

QString WTLogMessage::threadID() const
{
    return m_caller.systemThread > 0 ? QString::number(m_caller.systemThread) : u"N/A"_s;
}

bool WTLogMessage::isEqual(const WTLogMessage &other) const
{
    return m_message == other.m_message && m_level == other.m_level && m_flag == other.m_flag &&
           m_context == other.m_context && m_place == other.m_place && m_tag == other.m_tag &&
           m_options == other.m_options && m_timestamp == other.m_timestamp && m_caller == other.m_caller;
}

size_t WTLogMessage::hash() const
{
    return qHash(m_message) ^ m_level ^ m_flag ^ static_cast<size_t>(m_context) ^ qHash(m_place.file) ^
           qHash(m_place.function) ^ line() ^ qHash(m_tag.toString()) ^ m_options ^
           static_cast<size_t>(m_timestamp.time_since_epoch().count()) ^ qHash(threadID()) ^ qHash(threadName()) ^
           qHash(queueLabel());
}
