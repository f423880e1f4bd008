#include "dialog/program/Screenshot.h"

#include "dialog/program/CommandOutput.h"
#include "dialog/window/DialogWindow.h"

#include <QtCore/QBuffer>
#include <QtCore/QEventLoop>
#include <QtGui/QPixmap>
#include <QtWidgets/QApplication>

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
    const Result<> written = file.open(line.screenshot, outputTerms(line))
                                 .andThen([&] { return file.write(png.data()); })
                                 .andThen([&] { return file.commit(); });
    return written ? ExitStatus::Done : failWith(written.fault());
}

} // namespace

ExitStatus takeScreenshot(const CommandLine &line)
{
    DialogWishes wishes = line;
    wishes.isPicture = true;
    DialogWindow window(wishes);
    if (!window.documentState())
        return failWith(window.documentState().fault());
    window.show();
    waitForPrinter(window);
    if (!window.printerState())
        return failWith(window.printerState().fault());
    if (!window.settingState())
        return failWith(window.settingState().fault());
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    return write(picture(window, line), line);
}
