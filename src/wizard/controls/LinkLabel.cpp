#include "LinkLabel.h"

#include <QFocusEvent>

void LinkLabel::focusInEvent(QFocusEvent *event)
{
    QLabel::focusInEvent(event);
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
        QLabel::focusNextPrevChild(true);
}
