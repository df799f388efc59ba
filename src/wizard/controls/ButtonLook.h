#pragma once

#include "Picture.h"

#include <QColor>
#include <QString>

class QAbstractButton;
class QPainter;

/// How a button of the wizard is drawn at one moment. Around the shape there is room for the focus ring.
struct ButtonLook {
    QColor text;
    QColor border;
    QColor background;
    qreal borderWidth = 1;
    qreal cornerRadius = 4;
    Picture image;
    bool leading = false; ///< Picture and title stand at the left edge instead of the middle.

    /// Draws the button's title without the spaces around it, so that it looks centred.
    void paint(QPainter &painter, const QAbstractButton &button) const;

    static QSize sizeHint(const QAbstractButton &button, const Picture &image, bool leading);
    /// The title as it is read aloud: no spaces around it, no mark of its mnemonic.
    static QString spokenTitle(const QString &title);
};
