#include "WTLogMessage.h"

#include "SerialQueue.h"

#include <QHash>
#include <mutex>
#include <new>
#include <pthread.h>
#include <unistd.h>
#include <vector>

using namespace Qt::Literals::StringLiterals;

struct WTLogMessage::Fields : QSharedData {
    QString message;
    QString messageFormat;
    quint64 level = 0;
    quint64 flag = 0;
    qint64 context = 0;
    Place place;
    QVariant tag;
    quint64 options = 0;
    Date timestamp;
    Caller caller;
    quint32 qos = 0;

    /// The last holder is gone.
    static void operator delete(Fields *fields, std::destroying_delete_t);
};

/// Fields whose message is gone, with the memory of their text, for the next one. What the caller's thread took would
/// otherwise be given back by the logging queue's, and each would wait in the allocator for the other. Nobody waits
/// here: when another thread is at it, memory is taken and given back the ordinary way.
class WTLogMessage::UnusedFields
{
public:
    static UnusedFields &shared()
    {
        static auto *const unused = new UnusedFields;
        return *unused;
    }

    SharedFields take()
    {
        const std::unique_lock lock(m_mutex, std::try_to_lock);
        if (!lock.owns_lock() || m_fields.empty())
            return SharedFields(new Fields);
        Fields *const fields = m_fields.back();
        m_fields.pop_back();
        return SharedFields(fields);
    }

    void giveBack(Fields *fields)
    {
        constexpr qsizetype longestText = 512;
        if (fields->message.capacity() > longestText)
            fields->message = QString();
        fields->message.resize(0);
        fields->messageFormat = QString();
        fields->place = {};
        fields->tag = {};
        fields->caller = {};
        const std::unique_lock lock(m_mutex, std::try_to_lock);
        if (lock.owns_lock() && m_fields.size() < most) {
            m_fields.push_back(fields);
            return;
        }
        fields->~Fields();
        ::operator delete(fields);
    }

private:
    static constexpr std::size_t most = 8192;

    UnusedFields() { m_fields.reserve(most); }

    std::mutex m_mutex;
    std::vector<Fields *> m_fields;
};

void WTLogMessage::Fields::operator delete(Fields *fields, std::destroying_delete_t)
{
    UnusedFields::shared().giveBack(fields);
}

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
    return {facts.identifier, facts.name, SerialQueue::currentLabel()};
}

WTLogMessage::SharedFields WTLogMessage::fieldsWith(const QString &format, quint64 level, quint64 flag, qint64 context,
                                                    const Place &place, const QVariant &tag, quint64 options,
                                                    std::optional<Date> timestamp)
{
    SharedFields fields = UnusedFields::shared().take();
    fields->messageFormat = format;
    fields->level = level;
    fields->flag = flag;
    fields->context = context;
    fields->place = place;
    fields->tag = tag;
    fields->options = options;
    fields->timestamp = timestamp.value_or(std::chrono::system_clock::now());
    fields->caller = Caller::current();
    return fields;
}

WTLogMessage WTLogMessage::initWithFormat(const QString &format, const QString &formatted, quint64 level, quint64 flag,
                                          qint64 context, const Place &place, const QVariant &tag, quint64 options,
                                          std::optional<Date> timestamp)
{
    SharedFields fields = fieldsWith(format, level, flag, context, place, tag, options, timestamp);
    fields->message = formatted;
    return WTLogMessage(std::move(fields));
}

WTLogMessage WTLogMessage::initWithFormat(const QString &format, std::initializer_list<FormatArgument> args,
                                          quint64 level, quint64 flag, qint64 context, const Place &place,
                                          const QVariant &tag, quint64 options, std::optional<Date> timestamp)
{
    SharedFields fields =
        fieldsWith(format, level, flag, context, place, tag, options | WTLogMessageDontCopyMessage, timestamp);
    appendFormatted(fields->message, format, args);
    return WTLogMessage(std::move(fields));
}

WTLogMessage WTLogMessage::initWithMessage(const QString &message, quint64 level, quint64 flag, qint64 context,
                                           const Place &place, const QVariant &tag, quint64 options,
                                           std::optional<Date> timestamp)
{
    return initWithFormat(message, message, level, flag, context, place, tag, options, timestamp);
}

WTLogMessage::WTLogMessage(SharedFields fields)
    : m_fields(std::move(fields))
{
}

WTLogMessage::WTLogMessage(const WTLogMessage &other) = default;
WTLogMessage::WTLogMessage(WTLogMessage &&other) noexcept = default;
WTLogMessage &WTLogMessage::operator=(const WTLogMessage &other) = default;
WTLogMessage &WTLogMessage::operator=(WTLogMessage &&other) noexcept = default;
WTLogMessage::~WTLogMessage() = default;

WTLogMessage WTLogMessage::spokenBy(const Caller &caller) const
{
    const Fields &ours = *m_fields;
    WTLogMessage same = initWithFormat(ours.messageFormat, ours.message, ours.level, ours.flag, ours.context,
                                       ours.place, ours.tag, ours.options, ours.timestamp);
    same.m_fields->caller = caller;
    return same;
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

QString WTLogMessage::fileName() const
{
    return fileNameOf(m_fields->place.file);
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

QString WTLogMessage::threadID() const
{
    const qint64 identifier = m_fields->caller.systemThread;
    return identifier > 0 ? QString::number(identifier) : u"N/A"_s;
}

QString WTLogMessage::threadName() const
{
    return QString::fromUtf8(m_fields->caller.threadName.data());
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
           ours.context == theirs.context && ours.place == theirs.place && ours.tag == theirs.tag &&
           ours.options == theirs.options && ours.timestamp == theirs.timestamp && ours.caller == theirs.caller &&
           ours.qos == theirs.qos;
}

size_t WTLogMessage::hash() const
{
    const Fields &fields = *m_fields;
    const auto time = fields.timestamp.time_since_epoch().count();
    return qHash(fields.message) ^ fields.level ^ fields.flag ^ static_cast<size_t>(fields.context) ^
           qHash(fields.place.file) ^ qHash(fields.place.function) ^ fields.place.line ^ qHash(fields.tag.toString()) ^
           fields.options ^ static_cast<size_t>(time) ^ qHash(threadID()) ^ qHash(threadName()) ^
           qHash(fields.caller.queueLabel) ^ fields.qos;
}
