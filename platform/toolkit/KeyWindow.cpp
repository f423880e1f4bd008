#include "platform/toolkit/KeyWindow.h"

#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

namespace {

QPointer<QWidget> &registeredWindow()
{
    static QPointer<QWidget> window;
    return window;
}

} // namespace

QWidget *keyWindow()
{
    return registeredWindow();
}

void setKeyWindow(QWidget *window)
{
    registeredWindow() = window;
}

std::optional<double> keyWindowHeight()
{
    if (!keyWindow())
        return std::nullopt;
    return keyWindow()->frameGeometry().height();
}
