#pragma once

#include "platform/Export.h"

#include <QtWidgets/QLabel>

/// A label of one line of plain text that is cut at its end where it is too long, with an ellipsis;
/// the whole text is then its tool tip. For texts from outside, whose length nobody knows.
class VELKARO_PLATFORM_EXPORT ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget *parent = nullptr);

    /// The text as it is shown at the present width.
    QString shownText() const;

    /// The tool tip of a text that is cut (as markup, with the text's own made harmless); null for
    /// one that is shown whole.
    QString wholeTextTip() const;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};
