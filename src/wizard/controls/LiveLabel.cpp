#include "LiveLabel.h"

#include <QAccessibleWidget>
#include <QVariant>

namespace
{

constexpr const char *roleProperty = "accessibleRole";

QAccessibleInterface *makeAccessible(const QString &, QObject *object)
{
    const QVariant role = object ? object->property(roleProperty) : QVariant();
    return role.isValid()
               ? new QAccessibleWidget(qobject_cast<QWidget *>(object), static_cast<QAccessible::Role>(role.toInt()))
               : nullptr;
}

} // namespace

void setAccessibleRole(QWidget &widget, QAccessible::Role role)
{
    [[maybe_unused]] static const bool once = (QAccessible::installFactory(makeAccessible), true);
    widget.setProperty(roleProperty, static_cast<int>(role));
}

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
    // Qt does not pass alert events on to screen readers under AT-SPI. They do read a notification that appears.
    QAccessibleEvent shown(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shown);
}
