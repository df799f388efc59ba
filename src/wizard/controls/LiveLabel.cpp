#include "LiveLabel.h"

#include "accessibleRole.h"

LiveLabel::LiveLabel(const QString &text, TextStyle::Size size, const QColor &color, QWidget *parent)
    : QLabel(text, parent)
{
    setAccessibleRole(*this, QAccessible::Notification);
    setAccessibleName(text);
    TextStyle::apply(*this, size, color);
}

void LiveLabel::setText(const QString &text)
{
    if (text == this->text())
        return;
    QLabel::setText(text);
    setAccessibleName(text);
    if (!isVisible() || text.isEmpty())
        return;
    // The bridge to AT-SPI passes no alerts on; a notification that shows is read.
    QAccessibleEvent shown(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shown);
}
