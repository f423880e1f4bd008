#include "dialog/window/NoticeSign.h"

#include <QtGui/QPainter>
#include <QtWidgets/QStyle>

#include <array>

namespace {

constexpr qreal kSide = 16; // units of the drawing
constexpr qreal kStroke = 2;

struct Strokes
{
    QLineF first;
    QLineF second;
};

// Indexed by NoticeSign::Mark. A line without length is a dot.
constexpr std::array kMarks{Strokes{{8, 4.5, 8, 4.5}, {8, 7.5, 8, 11.5}},
                            Strokes{{8, 4.5, 8, 8.5}, {8, 11.5, 8, 11.5}},
                            Strokes{{5.5, 5.5, 10.5, 10.5}, {5.5, 10.5, 10.5, 5.5}}};

} // namespace

NoticeSign::NoticeSign(QWidget *parent) : QWidget(parent)
{
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize);
    setFixedSize(side, side);
}

void NoticeSign::setSign(Mark mark, const QColor &color)
{
    if (m_mark == mark && m_color == color)
        return;
    m_mark = mark;
    m_color = color;
    update();
}

void NoticeSign::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(width() / kSide, height() / kSide);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_color);
    painter.drawEllipse(QRectF(0, 0, kSide, kSide));
    painter.setPen(QPen(Qt::white, kStroke, Qt::SolidLine, Qt::RoundCap));
    const Strokes &strokes = kMarks[static_cast<std::size_t>(m_mark)];
    for (const QLineF &line : {strokes.first, strokes.second}) {
        if (line.isNull())
            painter.drawPoint(line.p1());
        else
            painter.drawLine(line);
    }
}
