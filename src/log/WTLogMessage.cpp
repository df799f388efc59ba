#include "WTLogMessage.h"

#include "SerialQueue.h"

#include <QHash>
#include <array>
#include <pthread.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

struct WTLogMessage::Fields {
    QString message;
    QString messageFormat;
    quint64 level;
    quint64 flag;
    qint64 context;
    Place place;
    QString fileName;
    QVariant tag;
    quint64 options;
    Date timestamp;
    Caller caller;
    quint32 qos = 0;
};

namespace
{

QString fileNameOf(const QString &path)
{
    const QString name = path.sliced(path.lastIndexOf(u'/') + 1);
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot < 0 ? name : name.first(dot);
}

/// Plain data, so that a thread can still log while it ends and its other thread-local objects are gone.
struct ThreadFacts {
    ThreadFacts() { pthread_getname_np(pthread_self(), name.data(), name.size()); }

    pid_t identifier = gettid();
    std::array<char, 16> name{};
};

} // namespace

WTLogMessage::Caller WTLogMessage::Caller::current()
{
    // Asking the system costs more than all the rest of a message, and a thread has its name before it logs.
    thread_local const ThreadFacts facts;
    const QString identifier = facts.identifier > 0 ? QString::number(facts.identifier) : u"N/A"_s;
    return {identifier, QString::fromUtf8(facts.name.data()), SerialQueue::currentLabel()};
}

WTLogMessage WTLogMessage::initWithFormat(const QString &format, const QString &formatted, quint64 level, quint64 flag,
                                          qint64 context, const Place &place, const QVariant &tag, quint64 options,
                                          std::optional<Date> timestamp)
{
    return WTLogMessage(Fields{.message = formatted,
                               .messageFormat = format,
                               .level = level,
                               .flag = flag,
                               .context = context,
                               .place = place,
                               .fileName = fileNameOf(place.file),
                               .tag = tag,
                               .options = options,
                               .timestamp = timestamp.value_or(std::chrono::system_clock::now()),
                               .caller = Caller::current()});
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

WTLogMessage::WTLogMessage(Fields fields)
    : m_fields(std::make_shared<const Fields>(std::move(fields)))
{
}

WTLogMessage WTLogMessage::spokenBy(const Caller &caller) const
{
    Fields fields = *m_fields;
    fields.caller = caller;
    return WTLogMessage(std::move(fields));
}

const QString &WTLogMessage::message() const
{
    return m_fields->message;
}

const QString &WTLogMessage::messageFormat() const
{
    return m_fields->messageFormat;
}

quint64 WTLogMessage::level() const
{
    return m_fields->level;
}

quint64 WTLogMessage::flag() const
{
    return m_fields->flag;
}

qint64 WTLogMessage::context() const
{
    return m_fields->context;
}

const QString &WTLogMessage::file() const
{
    return m_fields->place.file;
}

const QString &WTLogMessage::fileName() const
{
    return m_fields->fileName;
}

const QString &WTLogMessage::function() const
{
    return m_fields->place.function;
}

quint64 WTLogMessage::line() const
{
    return m_fields->place.line;
}

const QVariant &WTLogMessage::tag() const
{
    return m_fields->tag;
}

const QVariant &WTLogMessage::representedObject() const
{
    return m_fields->tag;
}

quint64 WTLogMessage::options() const
{
    return m_fields->options;
}

WTLogMessage::Date WTLogMessage::timestamp() const
{
    return m_fields->timestamp;
}

const QString &WTLogMessage::threadID() const
{
    return m_fields->caller.threadID;
}

const QString &WTLogMessage::threadName() const
{
    return m_fields->caller.threadName;
}

const QString &WTLogMessage::queueLabel() const
{
    return m_fields->caller.queueLabel;
}

quint32 WTLogMessage::qos() const
{
    return m_fields->qos;
}

bool WTLogMessage::isEqual(const WTLogMessage &other) const
{
    if (m_fields == other.m_fields)
        return true;
    const Fields &ours = *m_fields;
    const Fields &theirs = *other.m_fields;
    return ours.message == theirs.message && ours.level == theirs.level && ours.flag == theirs.flag &&
           ours.context == theirs.context && ours.place == theirs.place && ours.fileName == theirs.fileName &&
           ours.tag == theirs.tag && ours.options == theirs.options && ours.timestamp == theirs.timestamp &&
           ours.caller == theirs.caller && ours.qos == theirs.qos;
}

size_t WTLogMessage::hash() const
{
    const Fields &fields = *m_fields;
    const auto time = fields.timestamp.time_since_epoch().count();
    return qHash(fields.message) ^ fields.level ^ fields.flag ^ static_cast<size_t>(fields.context) ^
           qHash(fields.place.file) ^ qHash(fields.fileName) ^ qHash(fields.place.function) ^ fields.place.line ^
           qHash(fields.tag.toString()) ^ fields.options ^ static_cast<size_t>(time) ^ qHash(fields.caller.threadID) ^
           qHash(fields.caller.threadName) ^ qHash(fields.caller.queueLabel) ^ fields.qos;
}
