#pragma once

#include "TextStyle.h"

/// A label whose text a screen reader speaks by itself: when it comes to show, and when it changes while it shows.
/// To the screen reader it is a notification.
class LiveLabel : public QLabel
{
    Q_OBJECT

public:
    LiveLabel(const QString &text, TextStyle::Size size, const QColor &color, QWidget *parent = nullptr);

    /// Nothing is spoken of a text that shows already.
    void setText(const QString &text);
};
