#pragma once

#include "platform/Export.h"

#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

/// An invisible part of a view that tells when it comes on screen and, while it is there, when the
/// window around the view changes its height. A change of the width alone is not told.
class VELKARO_PLATFORM_EXPORT SizeWatch : public QWidget
{
    Q_OBJECT

public:
    explicit SizeWatch(QWidget *parent = nullptr);

    /// Tells at once.
    void fire() { Q_EMIT fired(); }

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// The part has come on screen, or the window has another height.
    void fired();

protected:
    bool event(QEvent *event) override;

private:
    void followWindow();

    QPointer<QWidget> m_window;
};
