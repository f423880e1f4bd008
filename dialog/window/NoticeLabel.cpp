#include "dialog/window/NoticeLabel.h"

#include "platform/toolkit/PlainLabel.h"

#include <QtGui/QHelpEvent>
#include <QtGui/QPainter>

#include <algorithm>
#include <utility>

namespace {

constexpr int kFewestLines = 2;
constexpr int kLeastWidth = 200;

} // namespace

NoticeLabel::NoticeLabel(QWidget *parent) : QLabel(parent)
{
    QTextOption wrapped;
    wrapped.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    m_layout.setTextOption(wrapped);
    m_layout.setCacheEnabled(true); // what is measured is painted
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

int NoticeLabel::shownCount() const
{
    return std::min(m_layout.lineCount(), m_lines);
}

bool NoticeLabel::isCut() const
{
    return m_layout.lineCount() > m_lines;
}

void NoticeLabel::breakLines()
{
    m_layout.setText(text());
    m_layout.setFont(font());
    m_layout.beginLayout();
    while (m_layout.lineCount() <= mostLines()) {
        QTextLine line = m_layout.createLine();
        if (!line.isValid())
            break;
        line.setLineWidth(contentsRect().width());
    }
    m_layout.endLayout();
}

/// Of as many lines as the text has at the present width.
void NoticeLabel::takeRoom()
{
    breakLines();
    const int lines = std::clamp(m_layout.lineCount(), kFewestLines, mostLines());
    if (std::exchange(m_lines, lines) != lines)
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

/// All that is left, as far as there is room for it.
QString NoticeLabel::lastLine() const
{
    const QString rest = text().mid(m_layout.lineAt(shownCount() - 1).textStart()).trimmed();
    return fontMetrics().elidedText(rest, Qt::ElideRight, contentsRect().width());
}

QStringList NoticeLabel::shownLines() const
{
    QStringList lines;
    for (int index = 0; index < shownCount(); ++index) {
        const QTextLine line = m_layout.lineAt(index);
        lines += text().mid(line.textStart(), line.textLength()).trimmed();
    }
    if (isCut())
        lines.last() = lastLine();
    return lines;
}

bool NoticeLabel::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    showToolTip(static_cast<QHelpEvent *>(event)->globalPos(), isCut() ? text() : QString(), this);
    return true;
}

void NoticeLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        takeRoom();
}

void NoticeLabel::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    takeRoom();
}

void NoticeLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    const int spacing = fontMetrics().lineSpacing();
    QRect area = contentsRect();
    area.setTop(area.top() + (area.height() - shownCount() * spacing) / 2);
    area.setHeight(spacing);
    for (int index = 0; index < shownCount(); ++index) {
        if (isCut() && index == shownCount() - 1)
            painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter, lastLine());
        else
            m_layout.lineAt(index).draw(&painter, area.topLeft());
        area.translate(0, spacing);
    }
}
