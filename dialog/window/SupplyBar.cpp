#include "dialog/window/SupplyBar.h"

#include "platform/toolkit/AccessibleName.h"

#include <QtGui/QPainter>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionFocusRect>

#include <algorithm>

namespace {

constexpr int kBarLength = 10; // of the font's average character
constexpr int kGap = 2; // between the outline and the color: white ink and black ink are seen
constexpr int kFocusMargin = 3;

} // namespace

SupplyBar::SupplyBar(const Supply &supply, QWidget *parent) : QProgressBar(parent), m_supply(supply)
{
    setObjectName(QStringLiteral("supplyBar"));
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    if (supply.level)
        setValue(*supply.level);
    giveAccessibleName(this, supply.name);
    giveAccessibleText(this, levelText(supply));
}

QSize SupplyBar::sizeHint() const
{
    return {kBarLength * fontMetrics().averageCharWidth(),
            fontMetrics().height() + 2 * kFocusMargin};
}

QSize SupplyBar::minimumSizeHint() const
{
    return sizeHint();
}

QString SupplyBar::text() const
{
    return levelText(m_supply);
}

void SupplyBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRect outline = rect().adjusted(kFocusMargin, kFocusMargin, -kFocusMargin, -kFocusMargin);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.setBrush(palette().brush(QPalette::Base));
    painter.drawRect(outline.adjusted(0, 0, -1, -1));
    paintLevel(painter, outline.adjusted(kGap, kGap, -kGap, -kGap));
    if (!hasFocus())
        return;
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}

/// A cartridge of several colors has one stripe for each. The end of the level is a line, since the
/// color may be that of the ground.
void SupplyBar::paintLevel(QPainter &painter, const QRect &room) const
{
    const QColor ink = palette().color(QPalette::WindowText);
    if (!m_supply.level) {
        painter.fillRect(room, QBrush(ink, Qt::BDiagPattern));
        return;
    }
    const int width = room.width() * *m_supply.level / 100;
    const int count = static_cast<int>(std::max<qsizetype>(1, m_supply.colors.size()));
    for (int stripe = 0; stripe < count; ++stripe) {
        const int top = room.height() * stripe / count;
        const int bottom = room.height() * (stripe + 1) / count;
        painter.fillRect(room.x(), room.y() + top, width, bottom - top,
                         m_supply.colors.isEmpty() ? palette().color(QPalette::PlaceholderText)
                                                   : QColor(m_supply.colors[stripe]));
    }
    if (width > 0)
        painter.drawLine(room.x() + width, room.top(), room.x() + width, room.bottom());
}
