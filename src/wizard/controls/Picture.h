#pragma once

#include <QPixmap>
#include <QSize>
#include <QString>

class QPainter;
class QRectF;

/// One of the program's own drawings, by its resource name, such as "icon_selected 1". It is vector graphics, so it is
/// sharp at any size and scale factor. If there is no drawing of that name, nothing is drawn.
class Picture
{
public:
    explicit Picture(QString name = {});

    const QString &name() const { return m_name; }
    bool isNull() const { return m_name.isEmpty(); }

    /// Draws the picture in the middle of `area`, as large as fits without changing its proportions.
    void paint(QPainter &painter, const QRectF &area) const;

    /// `size` in device-independent pixels.
    QPixmap pixmap(QSize size, qreal devicePixelRatio) const;

private:
    QString m_name;
};
