#pragma once

#include <QtWidgets/QLabel>

/// A label with the room of two lines, for plain text, or of so many that a sentence of ordinary
/// length can be read. What does not fit ends in an ellipsis and is whole in the tool tip.
class NoticeLabel : public QLabel
{
    Q_OBJECT

public:
    explicit NoticeLabel(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// The lines as they are shown.
    QStringList shownLines() const;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};
