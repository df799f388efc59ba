#include "accessibleRole.h"

#include <QAccessibleWidget>
#include <QVariant>
#include <QWidget>

namespace
{

constexpr const char *roleProperty = "accessibleRole";

QAccessibleInterface *makeAccessible(const QString &, QObject *object)
{
    const QVariant role = object ? object->property(roleProperty) : QVariant();
    return role.isValid() ? new QAccessibleWidget(qobject_cast<QWidget *>(object), QAccessible::Role(role.toInt()))
                          : nullptr;
}

} // namespace

void setAccessibleRole(QWidget &widget, QAccessible::Role role)
{
    [[maybe_unused]] static const bool once = (QAccessible::installFactory(makeAccessible), true);
    widget.setProperty(roleProperty, int(role));
}
