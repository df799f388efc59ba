#pragma once

#include "Picture.h"

#include <QWidget>

/// Shows one picture at a fixed size. Pointer events go to whatever is behind it.
class PictureView : public QWidget
{
    Q_OBJECT

public:
    PictureView(const QString &pictureName, QSize size, QWidget *parent = nullptr);

    QString pictureName() const { return m_picture.name(); }
    void setPictureName(const QString &name);

    QSize sizeHint() const override { return m_size; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Picture m_picture;
    QSize m_size;
};
