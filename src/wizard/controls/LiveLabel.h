#pragma once

#include "TextStyle.h"

#include <QAccessible>

/// Tells assistive technology what a widget is, where its class does not say. To be called while the widget is made: a
/// role that is set after assistive technology has asked for the widget has no effect.
void setAccessibleRole(QWidget &widget, QAccessible::Role role);

/// A label whose text a screen reader speaks by itself: when the label appears, and when the text changes while it
/// shows. To the screen reader it is a notification.
class LiveLabel : public QLabel
{
    Q_OBJECT

public:
    LiveLabel(const QString &text, TextStyle::Size size, const QColor &color, QWidget *parent = nullptr);

    /// The text that the label has already is not spoken again.
    void setText(const QString &text);
};
