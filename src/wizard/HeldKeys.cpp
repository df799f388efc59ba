#include "HeldKeys.h"

#include <QKeyEvent>

namespace
{

/// Some desktops report a held key as a release and a press of the same instant, without calling it a repeat. No finger
/// is that fast.
constexpr quint64 shortestPause = 5;

} // namespace

bool HeldKeys::eventFilter(QObject *, QEvent *event)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)
        return false;
    const auto *key = static_cast<const QKeyEvent *>(event);
    const bool isEnter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    if (!isEnter && key->key() != Qt::Key_Escape)
        return false;
    quint64 &released = isEnter ? m_enterReleased : m_escapeReleased;
    if (key->type() == QEvent::KeyRelease) {
        released = key->timestamp();
        return false;
    }
    return key->isAutoRepeat() || (released != 0 && key->timestamp() - released < shortestPause);
}
