// What an answer costs in CPU time, with all the copies of the process that find it out: of the
// sample printers, in a state in which it takes one change, and of one on which no change helps; of
// a printer with 2000 choices; and of one whose constraints are made to take all time.
#include "bench/advice/FollowCost.h"
#include "bench/support/BenchPrinter.h"
#include "bench/support/Timing.h"
#include "dialog/advice/Advising.h"
#include "dialog/host/HostSession.h"
#include "dialog/printing/PanelPicks.h"
#include "dialog/printing/PrintJob.h"
#include "tests/built/BuiltFiles.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int kTries = 5;
constexpr double kReachOfSamples = 100;
constexpr double kReachOf2000Choices = 300;
constexpr double kReachOfNone = 3000; // all sets of changes are looked among
constexpr int kBombConstraints = 5000;

double cpuMilliseconds()
{
    double all = 0;
    for (const auto who : {RUSAGE_SELF, RUSAGE_CHILDREN}) {
        rusage used{};
        getrusage(who, &used);
        for (const timeval &time : {used.ru_utime, used.ru_stime})
            all += static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
    }
    return all;
}

/// Waits for the copies that ended copies have left: their CPU time counts then.
void waitForOrphans()
{
    while (waitpid(-1, nullptr, 0) > 0) {
    }
}

/// Until the first answer, or the last.
double costOf(const PrintJob &job, const PPDMark &wanted, bool firstAlone, QString &sentence)
{
    const double before = cpuMilliseconds();
    bool isTold = false;
    const auto advice = adviceOn(
        *job.session(), wanted, [&] { return firstAlone && isTold; },
        [&](const Advice &) { isTold = true; });
    if (advice)
        sentence = advice->sentence;
    waitForOrphans();
    return cpuMilliseconds() - before;
}

void printRow(const char *what, const QString &ppd, const PPDMark &wanted, double reach)
{
    SessionOptions options;
    options.ppdPath = ppd;
    options.bundlePath = builtBundle();
    PrintJob job;
    job.setPrinter({}, openPrinter(options, *openPPD(ppd), {}));
    prepareControls(*job.session());
    double first = HUGE_VAL;
    double best = HUGE_VAL;
    QString sentence;
    for (int count = 0; count < kTries; ++count) {
        first = std::min(first, costOf(job, wanted, true, sentence));
        best = std::min(best, costOf(job, wanted, false, sentence));
    }
    printRatio(what, first, reach, 1, "ms");
    std::printf("    %.1f ms until the best: %s\n", best, qPrintable(sentence));
}

QString writeBomb(const QString &folder)
{
    const QString path = folder + u"/bomb.ppd"_s;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        std::exit(1);
    file.write(benchPrinter(kFewestChoices));
    for (int count = 0; count < kBombConstraints; ++count)
        file.write("*UIConstraints: *VKJpeg ON *VKMirror ON\n");
    return path;
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    prctl(PR_SET_CHILD_SUBREAPER, 1);
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    const PPDMark photo{u"VKResolution"_s, u"Photo"_s};
    printFollowCost();
    printHead("Why a choice is not to be had", "CPU", "allowed");
    for (const char *sample : {"velkaro-px-t900", "velkaro-mx-j710dw", "velkaro-px-330c"})
        printRow(sample, samplePPD(QString::fromLatin1(sample)), photo, kReachOfSamples);
    printRow("velkaro-px-t900, another paper", samplePPD(u"velkaro-px-t900"_s),
             {u"VKMediaType"_s, u"PrintableDisc"_s}, kReachOfSamples);
    printRow("velkaro-px-330c, nothing gives it", samplePPD(u"velkaro-px-330c"_s),
             {u"VKGreen"_s, u"20"_s}, kReachOfNone);
    printRow("46 choices", writeBenchPrinter(folder.path(), kFewestChoices), photo,
             kReachOfSamples);
    printRow("2000 choices", writeBenchPrinter(folder.path(), 2000), photo, kReachOf2000Choices);
    printRow("5000 constraints", writeBomb(folder.path()), photo, kReachOf2000Choices);
    return 0;
}
