#include "dialog/window/NoticeLabel.h"

#include "platform/toolkit/PlainLabel.h"

#include <QtGui/QHelpEvent>
#include <QtGui/QTextLayout>
#include <QtWidgets/QStylePainter>

#include <algorithm>

namespace {

constexpr int kFewestLines = 2;
constexpr int kOrdinaryLength = 150; // characters
constexpr int kOrdinaryWidth = 550;  // pixels: of a window that nobody has resized
constexpr int kLeastWidth = 200;

/// How many lines there is room for: the same whatever there is to tell.
int linesOf(const QFontMetrics &metrics)
{
    const int length = kOrdinaryLength * metrics.averageCharWidth();
    return std::max(kFewestLines, (length + kOrdinaryWidth - 1) / kOrdinaryWidth);
}

/// The length of the line of the text that begins at `start` and is no wider than `width`.
int lineLength(const QString &text, qsizetype start, const QFont &font, int width)
{
    QTextLayout layout(text.mid(start), font);
    QTextOption wrapped;
    wrapped.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(wrapped);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    if (line.isValid())
        line.setLineWidth(width);
    layout.endLayout();
    return line.isValid() ? line.textLength() : 0;
}

} // namespace

NoticeLabel::NoticeLabel(QWidget *parent) : QLabel(parent)
{
    setLabelText(this, QString());
}

QSize NoticeLabel::sizeHint() const
{
    return {kLeastWidth, linesOf(fontMetrics()) * fontMetrics().lineSpacing()};
}

QSize NoticeLabel::minimumSizeHint() const
{
    return sizeHint();
}

QStringList NoticeLabel::shownLines() const
{
    const QString whole = text();
    const int width = contentsRect().width();
    const int room = linesOf(fontMetrics());
    QStringList lines;
    qsizetype start = 0;
    while (start < whole.size() && lines.size() < room - 1) {
        const int length = lineLength(whole, start, font(), width);
        lines += whole.mid(start, length).trimmed();
        start += std::max(1, length);
    }
    if (start < whole.size())
        lines += fontMetrics().elidedText(whole.mid(start).trimmed(), Qt::ElideRight, width);
    return lines;
}

bool NoticeLabel::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    const bool isCut = shownLines().join(u' ') != text().simplified();
    showToolTip(static_cast<QHelpEvent *>(event)->globalPos(), isCut ? text() : QString(), this);
    return true;
}

void NoticeLabel::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    const QStringList lines = shownLines();
    const int line = fontMetrics().lineSpacing();
    QRect area = contentsRect();
    area.setTop(area.top() + (area.height() - static_cast<int>(lines.size()) * line) / 2);
    area.setHeight(line);
    for (const QString &text : lines) {
        painter.drawItemText(area, Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(), text,
                             foregroundRole());
        area.translate(0, line);
    }
}
