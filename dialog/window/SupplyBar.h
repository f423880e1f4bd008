#pragma once

#include "dialog/cups/Supplies.h"

#include <QtWidgets/QProgressBar>

/// How much there is of a supply, as a bar in the supply's own colors, with an outline that can be
/// seen on any desktop. What is not known is hatched. Assistive technology reads it as the name of
/// the supply and its level in words.
class SupplyBar : public QProgressBar
{
    Q_OBJECT

public:
    explicit SupplyBar(const Supply &supply, QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    QString text() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void paintLevel(QPainter &painter, const QRect &room) const;

    const Supply m_supply;
};
