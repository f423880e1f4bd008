#pragma once

#include <QtWidgets/QScrollArea>

/// Holds a part of a window. It asks for the room of its content, and is scrolled where a screen is
/// too small for that.
class ScrolledBody : public QScrollArea
{
    Q_OBJECT

public:
    explicit ScrolledBody(QWidget *parent = nullptr);

    /// Takes the content over, which has a layout, in the place of the former one.
    void setContent(QWidget *content);

    /// How much wider and higher the body would have to be for nothing of its content to be out of
    /// sight; negative where there is room to spare.
    QSize lackingSize() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};
