// What a pick costs, from the control's user signal until every control is consistent and painted,
// against painting the whole panel once; and how the number of choices in the PPD tells.
#include "bench/support/BenchPrinter.h"
#include "bench/support/PanelWindow.h"
#include "bench/support/Timing.h"

#include <QtCore/QTemporaryDir>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <utility>

namespace {

constexpr int kManyChoices = 2000;
constexpr int kRounds = 15;
constexpr int kPicks = 40;
constexpr int kOpenings = 5;

/// A pick, and the one that leads back to where it starts.
struct Pick
{
    const char *keyword;
    const char *from;
    const char *to;
};

// Each changes its own control and two more at most.
constexpr Pick kSmallPicks[] = {
    {"VKResolution", "PlainNormal", "PlainFast"},
    {"VKResolution", "PlainNormal", "Best"},
    {"VKMonoColor", "Color", "Mono"},
    {"VKColorPaperThick", "Regular", "Thick"},
    {"VKInputSlot", "Tray1", "Tray2"},
};

constexpr Pick kMediumPicks[] = {
    {"VKMediaType", "Plain", "Inkjet"},
    {"VKMediaType", "Plain", "Glossy"},
    {"VKMediaType", "Plain", "HagakiAtena"},
    {"VKMediaType", "Plain", "Transparencies"},
};

/// The windows over the PPD with few and with many choices.
struct Windows
{
    PanelWindow few;
    PanelWindow many;
};

Contender contender(const PanelWindow &window, const char *keyword, const char *from,
                    const char *to)
{
    PopUpButton *popup = window.popUp(keyword);
    const int first = popup->indexOfRepresentedObject(QString::fromLatin1(from));
    const int second = popup->indexOfRepresentedObject(QString::fromLatin1(to));
    return {[popup, second] { PanelWindow::pick(*popup, second); },
            [popup, first] { PanelWindow::pick(*popup, first); }};
}

void measureWay(Windows &windows, const char *keyword, const char *from, const char *to,
                double reach)
{
    Contender few = contender(windows.few, keyword, from, to);
    Contender many = contender(windows.many, keyword, from, to);
    Contender repaint{[&windows] { windows.few.repaint(); }};
    compare({&few, &repaint, &many}, kRounds, kPicks);
    const QByteArray name = QByteArray(keyword) + ' ' + from + " to " + to;
    printRatio(name.constData(), few.microseconds, repaint.microseconds, reach);
    printRatio("  the same with 2000 choices", many.microseconds, few.microseconds, 1.3);
}

// Measures the pick and the one that leads back, so that the next one starts from the defaults.
void measurePick(Windows &windows, const Pick &pick, double reach)
{
    measureWay(windows, pick.keyword, pick.from, pick.to, reach);
    measureWay(windows, pick.keyword, pick.to, pick.from, reach);
}

// The PPD has been opened before, as the dialog has it; what that costs is measured by itself.
void measureOpening(const QString &few, const QString &many)
{
    PPDHandle ppd;
    std::unique_ptr<PanelWindow> window;
    const auto open = [&](const QString &path) {
        return Contender{[&] {
                             window = std::make_unique<PanelWindow>(std::move(ppd));
                             window->showPrint();
                             window->showColor();
                         },
                         [&, path] {
                             window.reset();
                             ppd = openBenchPPD(path);
                         }};
    };
    Contender fewChoices = open(few);
    Contender manyChoices = open(many);
    compare({&fewChoices, &manyChoices}, kRounds, kOpenings);
    printRatio("both panels created, shown and painted", manyChoices.microseconds,
               fewChoices.microseconds, 1.5);
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    const QString few = writeBenchPrinter(folder.path(), kFewestChoices);
    const QString many = writeBenchPrinter(folder.path(), kManyChoices);
    {
        Windows windows{PanelWindow(openBenchPPD(few)), PanelWindow(openBenchPPD(many))};
        for (PanelWindow *window : {&windows.few, &windows.many}) {
            window->showColor();
            window->showPrint();
        }
        printHead("A pick against one repaint of the whole panel", "pick", "repaint");
        for (const Pick &pick : kSmallPicks)
            measurePick(windows, pick, 0.25);
        std::puts("  the media");
        for (const Pick &pick : kMediumPicks)
            measurePick(windows, pick, 1.0);
    }
    printHead("2000 choices against 46", "2000", "46");
    measureOpening(few, many);
    return 0;
}
