#pragma once

#include <QtWidgets/QScrollArea>

/// Holds a part of a window. It asks for the room of its content, which may become higher where it
/// is narrow, and is scrolled where a screen is too small for that.
class ScrolledBody : public QScrollArea
{
    Q_OBJECT

public:
    explicit ScrolledBody(QWidget *parent = nullptr);

    /// Takes the content over, which has a layout, in the place of the former one.
    void setContent(QWidget *content);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
};
