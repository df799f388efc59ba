#include "StallWatch.h"

#include <QMetaEnum>
#include <QThread>
#include <algorithm>

namespace
{

QString nameOf(const char *receiver, QEvent::Type event)
{
    const char *type = QMetaEnum::fromType<QEvent::Type>().valueToKey(event);
    return QStringLiteral("%1 %2").arg(QLatin1StringView(receiver), QLatin1StringView(type ? type : "user event"));
}

} // namespace

StallWatch::StallWatch(int &argc, char **argv)
    : QApplication(argc, argv)
{
    g_main_context_set_poll_func(nullptr, &StallWatch::poll);
}

void StallWatch::begin()
{
    m_stretch = Stretch();
}

void StallWatch::end()
{
    closeStretch();
    m_stretch.reset();
}

bool StallWatch::notify(QObject *receiver, QEvent *event)
{
    if (!m_stretch || QThread::currentThread() != thread())
        return QApplication::notify(receiver, event);
    // Neither need exist any more afterwards.
    const char *const name = receiver->metaObject()->className();
    const QEvent::Type type = event->type();
    const auto start = Clock::now();
    const bool accepted = QApplication::notify(receiver, event);
    if (!m_stretch)
        return accepted;
    // A loop inside the event has looked for events.
    const auto duration = Clock::now() - std::max(start, m_stretch->start);
    if (duration >= m_stretch->longestEvent) {
        m_stretch->longestEvent = duration;
        m_stretch->receiver = name;
        m_stretch->event = type;
    }
    return accepted;
}

gint StallWatch::poll(GPollFD *descriptors, guint count, gint timeout)
{
    auto *const watch = static_cast<StallWatch *>(instance());
    const bool counts = watch && watch->m_stretch;
    if (counts)
        watch->closeStretch();
    const gint ready = g_poll(descriptors, count, timeout);
    if (counts)
        watch->m_stretch = Stretch();
    return ready;
}

void StallWatch::closeStretch()
{
    const auto duration = Clock::now() - m_stretch->start;
    Work &work = m_work[nameOf(m_stretch->receiver, m_stretch->event)];
    ++work.stretches;
    work.stalls += duration > frame;
    work.longest = std::max(work.longest, std::chrono::duration<double, std::milli>(duration).count());
}
