#include "platform/toolkit/PanelPoint.h"

#include <QtWidgets/QLayout>
#include <QtWidgets/QWidget>

#include <algorithm>

namespace {

// Pixels. A row of a panel has the height of a line and what stays equal in all fonts: its frame
// and the space to the next row. What stays is counted small, since nothing may be cut.
constexpr int kDrawnLineHeight = 14;
constexpr int kAroundALine = 4;

double &pointNow()
{
    static double pixels = 1;
    return pixels;
}

bool isLaidOut(const QWidget &part)
{
    const QLayout *layout = part.parentWidget()->layout();
    return layout && layout->indexOf(&part) >= 0;
}

} // namespace

double pixelsPerPoint(int lineHeight)
{
    const double grown = double(lineHeight + kAroundALine) / (kDrawnLineHeight + kAroundALine);
    return std::max(1.0, grown);
}

double pixelsPerPoint()
{
    return pointNow();
}

void setPixelsPerPoint(double pixels)
{
    pointNow() = std::max(1.0, pixels);
}

int toPixels(double points)
{
    return qRound(points * pixelsPerPoint());
}

int toPoints(int pixels)
{
    return qRound(pixels / pixelsPerPoint());
}

QSizeF sizeInPoints(const QWidget &view)
{
    return {view.width() / pixelsPerPoint(), double(toPoints(view.height()))};
}

void scaleFrames(QWidget &container)
{
    // Other classes place what is in them by themselves.
    if (container.metaObject() != &QWidget::staticMetaObject)
        return;
    const auto parts = container.findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    for (QWidget *part : parts) {
        const QRect frame = part->geometry();
        const int top = toPixels(frame.top());
        const int bottom = toPixels(frame.top() + frame.height());
        if (!isLaidOut(*part) && !part->isWindow())
            part->setGeometry(frame.left(), top, frame.width(), bottom - top);
        scaleFrames(*part);
    }
}
