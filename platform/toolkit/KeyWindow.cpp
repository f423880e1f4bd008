#include "platform/toolkit/KeyWindow.h"

#include "platform/toolkit/PanelPoint.h"

#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

namespace {

struct RegisteredWindow
{
    QPointer<QWidget> window;
    std::optional<double> height;
};

RegisteredWindow &registeredWindow()
{
    static RegisteredWindow registered;
    return registered;
}

} // namespace

QWidget *keyWindow()
{
    return registeredWindow().window;
}

void setKeyWindow(QWidget *window, std::optional<double> height)
{
    registeredWindow() = {window, height};
}

std::optional<double> keyWindowHeight()
{
    if (!keyWindow())
        return std::nullopt;
    if (registeredWindow().height)
        return registeredWindow().height;
    return keyWindow()->frameGeometry().height() / pixelsPerPoint();
}
