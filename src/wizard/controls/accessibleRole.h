#pragma once

#include <QAccessible>

class QWidget;

/// Tells assistive technology what a widget is, where its class does not say. Called while the widget is made, before
/// anybody asks for it.
void setAccessibleRole(QWidget &widget, QAccessible::Role role);
