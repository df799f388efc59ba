#pragma once

#include "Picture.h"

#include <QColor>
#include <QString>

class QAbstractButton;
class QPainter;

/// How a button of the wizard is drawn at one moment: a rounded shape, with room for the focus ring around it.
struct ButtonLook {
    QColor text;
    QColor border;
    QColor background;
    qreal borderWidth = 1;
    qreal cornerRadius = 4;
    Picture image;
    bool leading = false; ///< Picture and title stand at the left edge instead of the middle.

    /// Leaves out the spaces around the button's title, so that the title looks centred.
    void paint(QPainter &painter, const QAbstractButton &button) const;

    static QSize sizeHint(const QAbstractButton &button, const Picture &image, bool leading);
    /// The title as a screen reader reads it: without the spaces around it and without the "&" of its mnemonic.
    static QString spokenTitle(const QString &title);
};
