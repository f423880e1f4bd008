#include "dialog/program/Screenshot.h"

#include "dialog/program/CommandOutput.h"
#include "dialog/window/DialogWindow.h"

#include <QtCore/QBuffer>
#include <QtCore/QEventLoop>
#include <QtGui/QPixmap>
#include <QtWidgets/QApplication>

using enum ExitStatus;

namespace {

void waitForPrinter(DialogWindow &window)
{
    QEventLoop loop;
    QObject::connect(&window, &DialogWindow::stateChanged, &loop, [&] {
        if (window.state() != DialogWindow::State::Searching)
            loop.quit();
    });
    window.start();
    if (window.state() == DialogWindow::State::Searching)
        loop.exec();
}

QPixmap picture(DialogWindow &window, const CommandLine &line)
{
    if (line.panel.isNull())
        return window.grab();
    QWidget *part = window.shownPart();
    // A panel's view lets the tab behind it shine through.
    QPixmap painted(part->size() * part->devicePixelRatioF());
    painted.setDevicePixelRatio(part->devicePixelRatioF());
    painted.fill(part->palette().color(QPalette::Window));
    part->render(&painted, QPoint(), QRegion(), QWidget::DrawChildren);
    return painted;
}

ExitStatus write(const QPixmap &painted, const CommandLine &line)
{
    QBuffer png;
    painted.save(&png, "PNG");
    OutputFile file;
    const bool isWritten =
        file.open(line.screenshot, outputTerms(line)) && file.write(png.data()) && file.commit();
    return isWritten ? Done : failWith(Output, file.error());
}

} // namespace

ExitStatus takeScreenshot(const CommandLine &line)
{
    DialogWindow window(line);
    if (!window.documentError().isNull())
        return failWith(Document, window.documentError());
    window.show();
    waitForPrinter(window);
    if (window.state() == DialogWindow::State::NoPrinter)
        return failWith(window.exitStatus() == Usage ? Usage : Server, window.notice().sentence());
    if (!window.settingError().isNull())
        return failWith(Usage, window.settingError());
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    return write(picture(window, line), line);
}
