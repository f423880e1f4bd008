#pragma once

#include "platform/Export.h"

#include <QtWidgets/QToolButton>

/// The arrow that folds and unfolds a section: it points at the text beside it while the button is
/// off, and down while it is on, however it came to be so.
class VELKARO_PLATFORM_EXPORT DisclosureButton : public QToolButton
{
    Q_OBJECT

public:
    explicit DisclosureButton(QWidget *parent = nullptr);

    /// As large as the arrow.
    QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void turnArrow();
};
