#include "WTHoverViewAccessible.h"

#include "WTHoverView.h"

WTHoverViewAccessible::WTHoverViewAccessible(WTHoverView *tile)
    : QAccessibleWidget(tile, QAccessible::RadioButton)
{
}

void WTHoverViewAccessible::install()
{
    static const bool once = [] {
        QAccessible::installFactory([](const QString &, QObject *object) -> QAccessibleInterface * {
            auto *tile = qobject_cast<WTHoverView *>(object);
            return tile ? new WTHoverViewAccessible(tile) : nullptr;
        });
        return true;
    }();
    Q_UNUSED(once)
}

WTHoverView *WTHoverViewAccessible::tile() const
{
    return static_cast<WTHoverView *>(widget());
}

QAccessible::State WTHoverViewAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = true;
    state.checked = tile()->isSelect();
    return state;
}

QStringList WTHoverViewAccessible::actionNames() const
{
    return QStringList{pressAction()} + QAccessibleWidget::actionNames();
}

void WTHoverViewAccessible::doAction(const QString &actionName)
{
    if (actionName == pressAction())
        tile()->choose();
    else
        QAccessibleWidget::doAction(actionName);
}
