#pragma once

#include <QtWidgets/QLayout>

/// Lays what it holds in lines, from left to right as text is, and begins another line where an
/// item has no more room in its least width: it asks for the width of one line, and can be as
/// narrow as its widest item.
class FlowLayout : public QLayout
{
    Q_OBJECT

public:
    /// Has no margins unless they are set.
    explicit FlowLayout(QWidget *parent = nullptr);
    ~FlowLayout() override;

    /// What belongs together in one line. The layout takes it over.
    void addLayout(QLayout *layout);

    void addItem(QLayoutItem *item) override;
    int count() const override { return static_cast<int>(m_items.size()); }
    QLayoutItem *itemAt(int index) const override { return m_items.value(index); }
    QLayoutItem *takeAt(int index) override;
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect &area) override;

private:
    using Line = QList<QLayoutItem *>;

    QList<Line> linesFor(int width) const;
    int heightOf(const Line &line) const;
    void place(const Line &line, const QRect &area) const;

    QList<QLayoutItem *> m_items;
};
