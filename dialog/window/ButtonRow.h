#pragma once

#include <QtWidgets/QWidget>

#include <array>

class QGridLayout;

/// The buttons of a window, in groups that stand side by side where there is room for all of them,
/// else the right one below the others, else each below the one before.
class ButtonRow : public QWidget
{
    Q_OBJECT

public:
    enum class Group { Left, Middle, Right };

    explicit ButtonRow(QWidget *parent = nullptr);

    /// Adds the widget at the right side of its group. One that stretches gets the room that is
    /// left over.
    void add(Group group, QWidget *widget, bool stretches = false);

    /// All groups side by side.
    QSize sizeHint() const override;

    /// The narrowest that it can be.
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;
    bool event(QEvent *event) override;

private:
    int widthOfFirst(std::size_t groups) const;
    void arrange();

    QGridLayout *m_grid;
    std::array<QWidget *, 3> m_groups; ///< indexed by Group
    std::size_t m_inFirstLine = 3;     ///< groups
};
