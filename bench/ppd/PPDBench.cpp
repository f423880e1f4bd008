// What opening a PPD costs, with every check that a stranger's file gets, against the bare parser
// and the marking of its defaults; and what the largest PPDs cost that are opened at all.
#include "bench/ppd/LimitRows.h"
#include "bench/support/BenchPrinter.h"
#include "bench/support/Timing.h"
#include "dialog/host/PPDFile.h"
#include "tests/built/BuiltFiles.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int kRounds = 20;
constexpr int kOpenings = 10;
constexpr double kReach = 1.5;

void openOurs(const QString &path)
{
    if (const auto opened = openPPD(path); !opened) {
        std::fprintf(stderr, "%s\n", qPrintable(opened.sentence()));
        std::exit(1);
    }
}

void openBare(const QString &path)
{
    const PPDHandle ppd(ppdOpenFile(QFile::encodeName(path).constData()));
    ppdMarkDefaults(ppd.get());
}

void measure(const char *what, const QString &path)
{
    Contender ours{[&path] { openOurs(path); }};
    Contender bare{[&path] { openBare(path); }};
    compare({&ours, &bare}, kRounds, kOpenings);
    printRatio(what, ours.microseconds, bare.microseconds, kReach);
}

} // namespace

int main()
{
    const QTemporaryDir folder;
    printHead("Opening a PPD against ppdOpenFile with ppdMarkDefaults", "ours", "libcups");
    measure("46 choices", writeBenchPrinter(folder.path(), kFewestChoices));
    measure("2000 choices", writeBenchPrinter(folder.path(), 2000));
    measure("a sample printer", samplePPD(QStringLiteral("velkaro-px-t900")));
    printLimitRows();
    return 0;
}
