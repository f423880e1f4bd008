#include "platform/toolkit/CaptionLabel.h"

#include "platform/toolkit/PlainLabel.h"

#include <QtGui/QHelpEvent>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStylePainter>

#include <algorithm>

namespace {

constexpr int kWidest = 130; // pixels: the column of captions in the panels

} // namespace

CaptionLabel::CaptionLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

QSize CaptionLabel::sizeHint() const
{
    return {std::min(fontMetrics().horizontalAdvance(text()), kWidest), fontMetrics().height()};
}

QSize CaptionLabel::minimumSizeHint() const
{
    return sizeHint();
}

QString CaptionLabel::shownText() const
{
    return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
}

QString CaptionLabel::wholeTextTip() const
{
    return shownText() == text() ? QString() : text().trimmed();
}

bool CaptionLabel::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    showToolTip(static_cast<QHelpEvent *>(event)->globalPos(), wholeTextTip(), this);
    return true;
}

void CaptionLabel::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    painter.drawItemText(contentsRect(), static_cast<int>(alignment()), palette(), isEnabled(),
                         shownText(), foregroundRole());
}
