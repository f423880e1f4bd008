#include "platform/toolkit/ElidedLabel.h"

#include <QtGui/QHelpEvent>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStylePainter>
#include <QtWidgets/QToolTip>

ElidedLabel::ElidedLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

QString ElidedLabel::shownText() const
{
    return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
}

QString ElidedLabel::wholeTextTip() const
{
    // A tool tip guesses at rich text, so it gets some that says what the plain text says.
    const bool whole = shownText() == text();
    return whole ? QString() : QStringLiteral("<p>%1</p>").arg(text().trimmed().toHtmlEscaped());
}

bool ElidedLabel::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), wholeTextTip(), this);
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    painter.drawItemText(contentsRect(), static_cast<int>(alignment()), palette(), isEnabled(),
                         shownText(), foregroundRole());
}
