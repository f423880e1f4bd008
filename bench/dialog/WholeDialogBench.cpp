// What the dialog costs as people start it: the program itself under a real X server, for a queue
// of a real print server, until both panels are filled from the queue's PPD. Its time against an
// empty window, its memory against Qt's own print dialog for the same queue.
#include "bench/support/DisplayServer.h"
#include "bench/support/ProcessCost.h"
#include "bench/support/Timing.h"
#include "tests/printserver/PrintServer.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QTemporaryDir>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int kRuns = 31;

// Cancelled, says the exit status, and that is what happens to it once it is filled. Asked for the
// second panel, it shows the first one before: what a person gets who looks at both.
Command ourDialog(const PrintServer &server)
{
    return {{PROGRAM, "-h", server.address().toStdString(), "-d", "photo", "--panel", "color",
             DOCUMENT},
            {{"QT_PLUGIN_PATH", WATCH_FOLDER}, {"QT_QPA_GENERIC_PLUGINS", "filledwatch"}},
            1};
}

Command qtDialog(const PrintServer &server)
{
    return {{QT_DIALOG_PROGRAM, "photo"}, {{"CUPS_SERVER", server.address().toStdString()}}};
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir home; // nobody's saved settings
    qputenv("HOME", home.path().toLocal8Bit());
    qputenv("XDG_RUNTIME_DIR", home.path().toLocal8Bit());
    qunsetenv("XDG_CONFIG_HOME");
    const DisplayServer display;
    PrintServer server;
    for (const QString &fault : {display.fault(), server.fault()})
        if (!fault.isNull())
            qFatal("%s", qPrintable(fault));
    if (!server.addQueue(u"photo"_s, samplePPD(u"velkaro-px-t900"_s)))
        return 1;
    display.use();

    const Comparison start = compareProcesses(ourDialog(server), {{EMPTY_WIDGETS_PROGRAM}}, kRuns);
    std::printf("Whole processes on an X server, median of %d runs in turn\n", kRuns);
    printHead("CPU time, with both panels filled", "dialog", "empty window");
    printRatio("start of the dialog", start.cpuMilliseconds[0], start.cpuMilliseconds[1], 2.0,
               "ms");
    const Comparison peers = compareProcesses(ourDialog(server), qtDialog(server), kRuns);
    printHead("Largest resident set, for the same queue", "dialog", "QPrintDialog");
    printRatio("with both panels, with its options page", peers.peakKilobytes[0],
               peers.peakKilobytes[1], 1.0, "KB");
    return 0;
}
