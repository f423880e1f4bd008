#pragma once

#include <QtWidgets/QWidget>

#include <array>

class QBoxLayout;

/// The buttons of a window, in groups that stand side by side where there is room for all of them,
/// else one above the other.
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
    int widthOfALine() const;
    void arrange();

    QBoxLayout *m_lines;
    std::array<QWidget *, 3> m_groups; ///< indexed by Group
};
