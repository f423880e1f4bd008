#include "platform/toolkit/ImageView.h"

#include <QtGui/QPainter>

ImageView::ImageView(QWidget *parent) : QWidget(parent) {}

void ImageView::setImage(const QImage &image, const QSize &size)
{
    m_image = image;
    m_size = size.isEmpty() ? image.size() : size;
    ++m_imagesPut;
    update();
}

QSize ImageView::sizeHint() const
{
    return m_size;
}

void ImageView::paintEvent(QPaintEvent *)
{
    if (m_image.isNull())
        return;
    QSize shown = m_size;
    if (shown.width() > width() || shown.height() > height())
        shown.scale(size(), Qt::KeepAspectRatio);
    QRect target(QPoint(), shown);
    target.moveCenter(rect().center());
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, shown != m_image.size());
    painter.drawImage(target, m_image);
}
