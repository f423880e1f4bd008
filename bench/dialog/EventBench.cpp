// What one event costs the thread of the window, in CPU time: the dearest one of each kind of use,
// on an ordinary printer, on PPDs at their limits, and with a server full of printers. Without a
// display; opening a window is not among the events.
#include "bench/support/EndWith.h"
#include "bench/support/Timing.h"
#include "dialog/window/DialogWindow.h"
#include "dialog/window/PrinterPopUp.h"
#include "platform/toolkit/PopUpButton.h"
#include "tests/built/BuiltFiles.h"
#include "tests/ppdlimits/PPDAtLimit.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QEventLoop>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTimer>
#include <QtGui/QShortcut>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTabWidget>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <functional>
#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr double kMostMilliseconds = 50;
constexpr double kFrame = 16; // ms: what nobody notices
constexpr int kTries = 3;
constexpr int kManyPrinters = 20000;
constexpr int kLongestOpening = 30000; // ms, by the clock
constexpr int kPause = 100;            // ms, after which the window knows that nobody goes on

double threadMilliseconds()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

/// Notes what each event costs that is not part of another one.
class EventCosts : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override
    {
        if (std::exchange(m_isWithin, true))
            return QApplication::notify(receiver, event);
        const double before = threadMilliseconds();
        const bool answer = QApplication::notify(receiver, event);
        m_dearest = std::max(m_dearest, threadMilliseconds() - before);
        m_isWithin = false;
        return answer;
    }

    /// Does the work within an event, and what that leaves to be done in others; the cost of the
    /// dearest one.
    double of(const std::function<void()> &work)
    {
        m_dearest = 0;
        QTimer::singleShot(0, this, work);
        for (int round = 0; round < 20; ++round)
            processEvents();
        return m_dearest;
    }

private:
    bool m_isWithin = false;
    double m_dearest = 0;
};

std::unique_ptr<DialogWindow> openedOn(const QString &ppd)
{
    DialogWishes line;
    line.ppd = ppd;
    line.plugIn = builtBundle();
    line.output = u"/dev/null"_s;
    auto window = std::make_unique<DialogWindow>(line);
    window->start();
    window->show();
    QElapsedTimer clock;
    clock.start();
    while (window->state() == DialogWindow::State::Searching && !clock.hasExpired(kLongestOpening))
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
    if (window->state() != DialogWindow::State::Ready)
        endWith(window->notice().sentence());
    return window;
}

/// The dearest event of some use, the best of several windows.
void printRow(EventCosts &costs, const char *what, const QString &ppd,
              const std::function<double(EventCosts &, DialogWindow &)> &use,
              double most = kMostMilliseconds)
{
    double best = HUGE_VAL;
    for (int count = 0; count < kTries; ++count) {
        const auto window = openedOn(ppd);
        best = std::min(best, use(costs, *window));
    }
    printRatio(what, best, most, 1, "ms");
}

double showParts(EventCosts &costs, DialogWindow &window)
{
    auto *parts = window.findChild<QTabWidget *>(u"parts"_s);
    double dearest = 0;
    for (int index = 0; index < parts->count(); ++index)
        dearest = std::max(dearest, costs.of([=] { parts->setCurrentIndex(index); }));
    return dearest;
}

/// Picks the last and the first enabled item of every pop-up of the part that is in front.
double pickEverywhere(EventCosts &costs, DialogWindow &window)
{
    double dearest = 0;
    for (PopUpButton *popup : window.shownPart()->findChildren<PopUpButton *>()) {
        for (const int index : {popup->count() - 1, 0}) {
            if (popup->isEnabled() && popup->isVisible() && popup->isItemEnabled(index))
                dearest = std::max(dearest, costs.of([=] { popup->pick(index); }));
        }
    }
    return dearest;
}

double pickInPageSetup(EventCosts &costs, DialogWindow &window)
{
    window.showPart(u"setup"_s);
    return pickEverywhere(costs, window);
}

void pause()
{
    QEventLoop loop;
    QTimer::singleShot(kPause, &loop, &QEventLoop::quit);
    loop.exec();
}

/// Undoes a pick after as many of them, before the last of which somebody looked at the window.
template <int picks> double undoAfter(EventCosts &costs, DialogWindow &window)
{
    window.showPart(u"print"_s);
    auto *media = window.shownPart()->findChild<PopUpButton *>(u"mediaTypePopup"_s);
    for (int count = 0; media && count < picks; ++count) {
        if (count == picks - 1)
            pause();
        costs.of([=] { media->pick(count % 2 == 0 ? 1 : 0); });
    }
    for (auto *shortcut : window.findChildren<QShortcut *>())
        if (shortcut->key() == QKeySequence(QKeySequence::Undo))
            return costs.of([=] { Q_EMIT shortcut->activated(); });
    endWith(u"There is no key to undo with."_s);
}

/// The list under which it is told why something is not there: the first time starts the process
/// that finds out.
double openList(EventCosts &costs, DialogWindow &window)
{
    window.showPart(u"print"_s);
    auto *popup = window.shownPart()->findChild<PopUpButton *>(u"resolutionPopup"_s);
    const double opened = costs.of([=] { popup->showPopup(); });
    return std::max(opened, costs.of([=] { popup->hidePopup(); }));
}

double undoInPageSetup(EventCosts &costs, DialogWindow &window)
{
    pickInPageSetup(costs, window);
    return undoAfter<0>(costs, window);
}

double listPrinters(EventCosts &costs, DialogWindow &window)
{
    QList<Destination> many(kManyPrinters);
    for (int number = 0; number < kManyPrinters; ++number)
        many[number].name.queue = u"printer%1"_s.arg(number);
    auto *printers = window.findChild<PrinterPopUp *>();
    return costs.of([&] { printers->setDestinations(many); });
}

double searchPrinters(EventCosts &costs, DialogWindow &window)
{
    listPrinters(costs, window);
    PopUpButton *printers = window.findChild<PrinterPopUp *>()->popup();
    const double opened = costs.of([=] { printers->showPopup(); });
    auto *words = printers->findChild<QLineEdit *>();
    return std::max(opened, costs.of([=] { words->insert(u"9"_s); }));
}

void printLimits(EventCosts &costs)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"limit.ppd"_s);
    for (const PPDLimit &limit : ppdLimits()) {
        QFile file(path);
        const QByteArray text = ppdWith(limit, limit.most);
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.flush())
            endWith(file.errorString());
        const QByteArray name(limit.name);
        printRow(costs, (name + ": a part is shown").constData(), path, showParts);
        printRow(costs, (name + ": a pick in Page Setup").constData(), path, pickInPageSetup);
        printRow(costs, (name + ": undo").constData(), path, undoInPageSetup);
    }
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    EventCosts costs(argc, argv);
    printHead("The dearest event of the window's thread", "CPU", "allowed");
    const QString sample = samplePPD(u"velkaro-px-t900"_s);
    printRow(costs, "a part is shown", sample, showParts);
    printRow(costs, "a pick in Print Settings", sample, pickEverywhere);
    printRow(costs, "a pick in Page Setup", sample, pickInPageSetup);
    printRow(costs, "undo after 1 pick", sample, undoAfter<1>, kFrame);
    printRow(costs, "undo after 100 picks", sample, undoAfter<100>, kFrame);
    printRow(costs, "undo after 500 picks", sample, undoAfter<500>, kFrame);
    printRow(costs, "a list is opened that lacks a choice", sample, openList, kFrame);
    printRow(costs, "20,000 printers are listed", sample, listPrinters);
    printRow(costs, "20,000 printers are searched", sample, searchPrinters);
    printLimits(costs);
    return 0;
}
