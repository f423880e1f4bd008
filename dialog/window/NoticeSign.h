#pragma once

#include <QtWidgets/QWidget>

/// A small round sign in a colour of its own, as alerts have it.
///
/// It is drawn here: searching the desktop's icon theme for the first icon of a program takes
/// longer than all of the dialog's own widgets.
class NoticeSign : public QWidget
{
    Q_OBJECT

public:
    enum class Mark { LetterI, Exclamation, Cross };

    explicit NoticeSign(QWidget *parent = nullptr);

    void setSign(Mark mark, const QColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Mark m_mark = Mark::LetterI;
    QColor m_color;
};
