#include "panel/ExtraAccessoryView.h"

#include <QtGui/QPainter>

ExtraAccessoryView::ExtraAccessoryView(QWidget *parent) : QWidget(parent) {}

void ExtraAccessoryView::setImage(const QString &path)
{
    myImage = QImage(path);
}

void ExtraAccessoryView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    if (!myImage.isNull())
        painter.drawImage(rect(), myImage);
}
