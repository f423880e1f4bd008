// What the dialog costs as people start it: the program itself under a real X server, for a queue
// of a real print server, until both panels are filled from the queue's PPD. Its time against an
// empty window, its memory against Qt's own print dialog for the same queue.
#include "bench/support/DialogStage.h"
#include "bench/support/ProcessCost.h"
#include "bench/support/Timing.h"

#include <QtCore/QCoreApplication>

#include <cstdio>

namespace {

constexpr int kRuns = 31;

// Runs the dialog with FilledWatch, which costs half a millisecond itself and cancels the dialog
// once both panels are filled; hence the exit status. With --panel for the second panel the dialog
// shows the first one before it, as for a person who looks at both.
Command ourDialog(const DialogStage &stage)
{
    return {{PROGRAM, "-h", stage.server().toStdString(), "-d", DialogStage::queue().toStdString(),
             "--panel", "color", DialogStage::document().toStdString()},
            {{"QT_PLUGIN_PATH", WATCH_FOLDER}, {"QT_QPA_GENERIC_PLUGINS", "filledwatch"}},
            1};
}

Command qtDialog(const DialogStage &stage)
{
    return {{QT_DIALOG_PROGRAM, DialogStage::queue().toStdString()},
            {{"CUPS_SERVER", stage.server().toStdString()}}};
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const DialogStage stage;
    const Comparison start = compareProcesses(ourDialog(stage), {{EMPTY_WIDGETS_PROGRAM}}, kRuns);
    std::printf("Whole processes on an X server, median of %d runs in turn\n", kRuns);
    printHead("CPU time, with both panels filled", "dialog", "empty window");
    printRatio("start of the dialog", start.cpuMilliseconds[0], start.cpuMilliseconds[1], 2.0,
               "ms");
    const Comparison peers = compareProcesses(ourDialog(stage), qtDialog(stage), kRuns);
    printHead("Largest resident set, for the same queue", "dialog", "QPrintDialog");
    printRatio("with both panels, with its options page", peers.peakKilobytes[0],
               peers.peakKilobytes[1], 1.0, "KB");
    return 0;
}
