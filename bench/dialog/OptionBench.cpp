// What one option change costs, from the control's user signal until there is nothing left to do
// and to paint: in the dialog, with all rules of the panels, and in Qt's own print dialog, which
// shows the same options of the same queue. Both in this process, on a real X server.
#include "bench/dialog/QtDialog.h"
#include "bench/support/DialogStage.h"
#include "bench/support/EndWith.h"
#include "bench/support/Timing.h"
#include "dialog/window/DialogWindow.h"
#include "platform/ppd/PPDText.h"
#include "platform/toolkit/PopUpButton.h"

#include <QtCore/QAbstractEventDispatcher>
#include <QtWidgets/QApplication>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int kRounds = 15;
constexpr int kPicks = 40;
constexpr double kReach = 1.0 / 6.0;
// Where a pick changes others, too, ours follows that up, tells it in words and offers to undo it:
// twice the work, for which the other dialog has nothing.
constexpr double kToldReach = 1.0 / 3.0;

/// An option, its pop-up in our panel, a choice of it and the one that is measured.
struct Pick
{
    const char *keyword;
    const char *popUp;
    const char *from;
    const char *to;
    double reach = kReach;
};

constexpr Pick kOptions[] = {
    {"VKMediaType", "mediaTypePopup", "Plain", "Glossy", kToldReach},
    {"VKResolution", "resolutionPopup", "PlainNormal", "PlainFast"},
    {"VKMonoColor", "monoColorPopup", "Color", "Mono"},
    {"VKInputSlot", "paperFeedPopup", "Tray1", "Tray2"},
};

// Until nothing is left: layouts, what was put off, then painting.
void settle()
{
    while (QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents)) {
    }
}

// As a user does who opens the list and clicks.
void pick(QComboBox &box, int index)
{
    box.setCurrentIndex(index);
    Q_EMIT box.activated(index);
    settle();
}

/// Counts how often a widget is painted.
class PaintCount : public QObject
{
public:
    explicit PaintCount(QWidget &widget) { widget.installEventFilter(this); }
    int count() const { return m_count; }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        m_count += event->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }

private:
    int m_count = 0;
};

// Ends the program when the pick changes nothing, or is not painted: it would measure nothing.
void checkThatItChanges(QComboBox &box, int from, int to)
{
    for (const int index : {to, from}) {
        const PaintCount paints(box);
        pick(box, index);
        if (box.currentIndex() != index || paints.count() == 0)
            endWith(u"A pick does not change %1."_s.arg(box.objectName()));
    }
}

Contender contender(QComboBox &box, int from, int to)
{
    if (from < 0 || to < 0)
        endWith(u"A choice is not among the items of %1."_s.arg(box.objectName()));
    pick(box, from);
    checkThatItChanges(box, from, to);
    return {[&box, to] { pick(box, to); }, [&box, from] { pick(box, from); }};
}

// Qt's items carry the number of the choice within its option.
int qtItem(const QComboBox &box, ppd_option_t &option, const char *choice)
{
    return box.findData(
        static_cast<int>(findChoice(&option, QLatin1String(choice)) - option.choices));
}

void measure(DialogWindow &window, const QWidget &page, const Pick &wanted)
{
    ppd_option_t *option = findOption(window.job().ppd(), QLatin1String(wanted.keyword));
    auto *popUp = window.findChild<PopUpButton *>(QLatin1String(wanted.popUp));
    QComboBox *qtBox = option ? qtOption(page, ppdText(option->text)) : nullptr;
    if (!popUp || !qtBox)
        endWith(u"One of the dialogs does not show %1."_s.arg(QLatin1String(wanted.keyword)));
    Contender ours = contender(*popUp, popUp->indexOfRepresentedObject(QLatin1String(wanted.from)),
                               popUp->indexOfRepresentedObject(QLatin1String(wanted.to)));
    Contender theirs =
        contender(*qtBox, qtItem(*qtBox, *option, wanted.from), qtItem(*qtBox, *option, wanted.to));
    compare({&ours, &theirs}, kRounds, kPicks);
    const QByteArray name = QByteArray(wanted.keyword) + ' ' + wanted.from + " to " + wanted.to;
    printRatio(name.constData(), ours.microseconds, theirs.microseconds, wanted.reach);
    ours.before(); // the next option starts from the defaults
    theirs.before();
}

void openDialog(DialogWindow &window)
{
    window.start();
    window.show();
    while (window.state() == DialogWindow::State::Searching)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    if (window.state() != DialogWindow::State::Ready)
        endWith(window.notice().sentence());
    settle();
}

} // namespace

int main(int argc, char **argv)
{
    const DialogStage stage;
    qputenv("CUPS_SERVER", stage.server().toLocal8Bit());
    const QApplication application(argc, argv);
    DialogWishes line;
    line.server = stage.server();
    line.queue = DialogStage::queue();
    line.files = {DialogStage::document()};
    DialogWindow window(line);
    openDialog(window);
    printHead("One option change, painted", "dialog", "QPrintDialog");
    const bool isShown = withQtOptionsPage(line.queue, [&window](const QWidget &page) {
        for (const Pick &option : kOptions)
            measure(window, page, option);
    });
    if (!isShown)
        endWith(u"Qt's dialog does not show the queue's options."_s);
    return 0;
}
