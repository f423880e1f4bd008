// Paints the pictures of README for which somebody must click: what the dialog tells after a pick,
// why something is not there, and the ways to it. In the user's language, without a display.
#include "bench/support/EndWith.h"
#include "bench/support/PictureProgram.h"
#include "dialog/window/DialogWindow.h"
#include "platform/toolkit/PopUpButton.h"
#include "tests/built/BuiltFiles.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtCore/QThread>
#include <QtGui/QContextMenuEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>

#include <functional>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostRounds = 2000; // of 10 ms

void waitUntil(const QString &what, const std::function<bool()> &isSo)
{
    for (int round = 0; round < kMostRounds && !isSo(); ++round) {
        QApplication::processEvents(QEventLoop::AllEvents, 10);
        if (!isSo())
            QThread::msleep(10);
    }
    if (!isSo())
        endWith(what);
    QApplication::processEvents();
}

std::unique_ptr<DialogWindow> opened(const QString &ppd)
{
    DialogWishes wishes;
    wishes.ppd = ppd;
    wishes.plugIn = builtBundle();
    wishes.output = u"/dev/null"_s;
    wishes.files = {samplePPDFolder() + u"/../sample/welcome.pdf"_s};
    auto window = std::make_unique<DialogWindow>(wishes);
    window->show();
    window->start();
    waitUntil(u"the printer is not opened"_s,
              [&] { return window->state() == DialogWindow::State::Ready; });
    return window;
}

template <typename Widget = QWidget> Widget *part(DialogWindow &window, const char *name)
{
    auto *found = window.findChild<Widget *>(QLatin1String(name));
    if (!found)
        endWith(QLatin1String(name));
    return found;
}

void pick(DialogWindow &window, const char *popup, const QString &choice)
{
    auto *found = part<PopUpButton>(window, popup);
    found->pick(found->indexOfRepresentedObject(choice));
    QApplication::processEvents();
}

/// The window, and what lies open over it.
void paint(const DialogWindow &window, const QString &path)
{
    QPixmap picture = const_cast<DialogWindow &>(window).grab();
    QPainter painter(&picture);
    for (QWidget *other : QApplication::topLevelWidgets())
        if (other->isVisible() && other != &window)
            painter.drawPixmap(other->pos() - window.pos(), other->grab());
    painter.end();
    if (!picture.save(path))
        endWith(path);
}

void askOfTheDisabledBox(DialogWindow &window)
{
    auto *box = part(window, "biDirButton");
    const QPoint place = box->rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, box->mapToGlobal(place));
    QApplication::sendEvent(box, &event);
    QApplication::processEvents();
}

void paintAdvice(const PictureProgram &program)
{
    const auto window = opened(samplePPD(u"velkaro-px-t900"_s));
    pick(*window, "mediaTypePopup", u"Glossy"_s);
    paint(*window, program.path(u"undo"_s));
    askOfTheDisabledBox(*window);
    paint(*window, program.path(u"whats-this"_s));
    auto *menu = part<QMenu>(*window, "questionMenu");
    QAction *question = menu->actions().constLast();
    menu->close();
    question->trigger();
    waitUntil(u"there is no answer"_s,
              [&] { return window->findChild<QWidget *>(u"getItButton"_s) != nullptr; });
    paint(*window, program.path(u"why"_s));
    window->showPart(u"summary"_s);
    QApplication::processEvents();
    paint(*window, program.path(u"origins"_s));
}

void paintList(const PictureProgram &program)
{
    const auto window = opened(samplePPD(u"velkaro-px-t900"_s));
    auto *popup = part<PopUpButton>(*window, "resolutionPopup");
    popup->showPopup();
    const auto line = [&] { return popup->findChild<QWidget *>(u"listAdvice"_s); };
    waitUntil(u"there is no line under the list"_s, [&] { return line() != nullptr; });
    const QString first = line()->accessibleName();
    waitUntil(u"there is no answer"_s, [&] { return line()->accessibleName() != first; });
    paint(*window, program.path(u"list"_s));
    popup->hidePopup();
}

/// The full sample printer, which moreover does not print both sides of transparencies.
void paintRefusal(const PictureProgram &program)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"clashing.ppd"_s);
    QFile::copy(samplePPD(u"velkaro-px-t900"_s), path);
    QFile file(path);
    if (!file.open(QIODevice::Append))
        endWith(u"there is no printer"_s);
    file.write("*UIConstraints: *Duplex DuplexTumble *VKMediaType Transparencies\n"
               "*UIConstraints: *VKMediaType Transparencies *Duplex DuplexTumble\n");
    file.close();
    const auto window = opened(path);
    pick(*window, "mediaTypePopup", u"Transparencies"_s);
    window->showPart(u"setup"_s);
    pick(*window, "DuplexPopup", u"DuplexTumble"_s);
    waitUntil(u"there is no remedy"_s,
              [&] { return window->findChild<QWidget *>(u"remedyButton"_s) != nullptr; });
    paint(*window, program.path(u"refusal"_s));
}

} // namespace

int main(int argc, char **argv)
{
    PictureProgram program(argc, argv);
    paintAdvice(program);
    paintList(program);
    paintRefusal(program);
    return 0;
}
