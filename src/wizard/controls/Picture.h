#pragma once

#include <QPixmap>
#include <QSize>
#include <QString>

class QPainter;
class QRectF;

/// One of the program's own drawings, by its resource name ("icon_selected 1"). Vector graphics, so it is crisp at any
/// size and scale factor. A name without a drawing shows nothing.
class Picture
{
public:
    explicit Picture(QString name = {});

    const QString &name() const { return m_name; }
    bool isNull() const { return m_name.isEmpty(); }

    /// Fills `area` as far as the drawing's proportions let it, centred.
    void paint(QPainter &painter, const QRectF &area) const;

    /// `size` in device-independent pixels.
    QPixmap pixmap(QSize size, qreal devicePixelRatio) const;

private:
    QString m_name;
};
