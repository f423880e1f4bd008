#include "dialog/window/NoticeLabel.h"

#include "platform/toolkit/PlainLabel.h"

#include <QtGui/QHelpEvent>
#include <QtGui/QTextLayout>
#include <QtWidgets/QStylePainter>

#include <algorithm>
#include <utility>

namespace {

constexpr int kFewestLines = 2;
constexpr int kLeastWidth = 200;

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

void NoticeLabel::setMostHeight(int pixels)
{
    m_mostHeight = pixels;
    takeRoom();
}

void NoticeLabel::showText(const QString &text)
{
    setLabelText(this, text);
    takeRoom();
}

int NoticeLabel::mostLines() const
{
    return std::max(kFewestLines, m_mostHeight / fontMetrics().lineSpacing());
}

/// As many as the text has at the present width.
int NoticeLabel::neededLines() const
{
    const int width = contentsRect().width();
    int lines = 0;
    for (qsizetype start = 0; start < text().size() && lines < mostLines(); ++lines)
        start += std::max(1, lineLength(text(), start, font(), width));
    return std::max(kFewestLines, lines);
}

void NoticeLabel::takeRoom()
{
    if (const int lines = neededLines(); std::exchange(m_lines, lines) != lines)
        updateGeometry();
}

QSize NoticeLabel::sizeHint() const
{
    return {kLeastWidth, m_lines * fontMetrics().lineSpacing()};
}

QSize NoticeLabel::minimumSizeHint() const
{
    return sizeHint();
}

QStringList NoticeLabel::shownLines() const
{
    const QString whole = text();
    const int width = contentsRect().width();
    QStringList lines;
    qsizetype start = 0;
    while (start < whole.size() && lines.size() < m_lines - 1) {
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

void NoticeLabel::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    takeRoom();
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
