#pragma once

#include "platform/Export.h"

#include <QtWidgets/QLabel>

/// The caption before a control: one line of plain text at the control's side of the label. It is
/// cut at its end where it is too long, with an ellipsis; the whole text is then its tool tip. For
/// texts from outside too, whose length nobody knows.
class VELKARO_PLATFORM_EXPORT CaptionLabel : public QLabel
{
    Q_OBJECT

public:
    explicit CaptionLabel(QWidget *parent = nullptr);

    /// The text as it is shown at the present width.
    QString shownText() const;

    /// The tool tip of a text that is cut; null for one that is shown whole.
    QString wholeTextTip() const;

    /// As wide as the text, but never so wide that the control is left without room.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};
