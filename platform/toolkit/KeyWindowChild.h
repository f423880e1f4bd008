#pragma once

#include "platform/Export.h"

#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

/// Makes a window a child of the key window for as long as this lives: the desktop keeps it in
/// front of the key window, and a QDialog comes up in the middle of it. At the end the window is
/// off the screen and has its former parent again.
///
/// The window is not owned and may be destroyed meanwhile, which the end of the key window does.
/// Without a key window, and for a null window, nothing has another parent.
class VELKARO_PLATFORM_EXPORT KeyWindowChild
{
public:
    explicit KeyWindowChild(QWidget *window);
    ~KeyWindowChild();
    Q_DISABLE_COPY_MOVE(KeyWindowChild)

private:
    QPointer<QWidget> m_window;
    QPointer<QWidget> m_formerParent;
    Qt::WindowFlags m_formerFlags;
};
