#include "PictureView.h"

#include <QPainter>

PictureView::PictureView(const QString &pictureName, QSize size, QWidget *parent)
    : QWidget(parent)
    , m_picture(pictureName)
    , m_size(size)
{
    setFixedSize(size);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void PictureView::setPictureName(const QString &name)
{
    m_picture = Picture(name);
    update();
}

void PictureView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    m_picture.paint(painter, rect());
}
