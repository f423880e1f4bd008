// Whether what is said of choices that are not to be had is true, found out by trying everything:
// by chance states of the sample printers and of made-up ones with constraints,
//   - a remedy gives the choice in a session that is opened anew;
//   - where it has two changes no single one does, where it has three no two do;
//   - where nothing is said to give it no single change does, nor two, nor three.
#include "tests/adviceproof/AdviceProof.h"
#include "tests/adviceproof/ConstrainedPrinter.h"
#include "tests/built/BuiltFiles.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QApplication>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int kLongestWalk = 6;

/// How many states of each kind are looked at, and of how many everything is tried.
struct Extent
{
    int states = 0;
    int pairs = 0;
    int triples = 0;
    int most = 0; ///< choices of a state
    quint32 seed = 0;
};

struct Figures
{
    int states = 0;
    int remedies[4] = {}; ///< by their number of changes
    int impossible = 0;
    int unknown = 0;
    int tried[4] = {}; ///< choices for which all sets of that size were tried
    int wrong = 0;
};

QString words(const QList<PPDMark> &marks)
{
    QStringList all;
    for (const PPDMark &mark : marks)
        all += mark.keyword + u'=' + mark.choice;
    return all.join(u' ');
}

void tellWrong(Figures &figures, const ProofState &state, const Advice &advice, const QString &what)
{
    ++figures.wrong;
    std::printf("WRONG: %s | %s | %s=%s: %s (%s)\n", qPrintable(state.ppd),
                qPrintable(words(state.walk)), qPrintable(advice.keyword),
                qPrintable(advice.choice), qPrintable(what), qPrintable(advice.sentence));
}

void proveRemedy(Figures &figures, const ProofState &state, const Advice &advice)
{
    const Remedy &remedy = advice.remedies.constFirst();
    ++figures.remedies[remedy.changes.size()];
    if (!isGivenBy(state, remedy.changes, {advice.keyword, advice.choice}))
        tellWrong(figures, state, advice, u"the remedy does not give it"_s);
}

/// Tries all sets that are smaller than what was said, as far as the extent goes.
void proveNothingSmaller(Figures &figures, const ProofState &state, const Advice &advice,
                         const Extent &extent)
{
    const bool isImpossible = advice.outcome == Advice::Outcome::Impossible;
    const qsizetype said = isImpossible ? 4 : advice.remedies.constFirst().changes.size();
    const int extents[] = {0, extent.states, extent.pairs, extent.triples};
    for (int size = 1; size < said; ++size) {
        if (figures.states > extents[size])
            continue;
        ++figures.tried[size];
        const auto found = anySetThatGives(state, size, {advice.keyword, advice.choice});
        if (found)
            tellWrong(figures, state, advice, u"it is given by "_s + words(*found));
    }
}

void prove(Figures &figures, const ProofState &state, const Extent &extent, quint32 seed)
{
    ++figures.states;
    for (const Advice &advice : adviceOnWhatIsLacking(state, seed, extent.most)) {
        if (advice.outcome == Advice::Outcome::Unknown) {
            ++figures.unknown;
            continue;
        }
        if (advice.outcome == Advice::Outcome::Possible)
            proveRemedy(figures, state, advice);
        else
            ++figures.impossible;
        proveNothingSmaller(figures, state, advice, extent);
    }
}

void print(const QString &what, const Figures &figures)
{
    std::printf(
        "%-20s %6d states; remedies of one %d, two %d, three %d; impossible %d, unknown %d; "
        "all singles tried for %d, pairs %d, triples %d; wrong %d\n",
        qPrintable(what), figures.states, figures.remedies[1], figures.remedies[2],
        figures.remedies[3], figures.impossible, figures.unknown, figures.tried[1],
        figures.tried[2], figures.tried[3], figures.wrong);
    std::fflush(stdout);
}

Figures proveOn(const QString &ppd, const Extent &extent)
{
    Figures figures;
    for (int index = 0; index < extent.states; ++index) {
        const quint32 seed = extent.seed + static_cast<quint32>(index);
        prove(figures, {ppd, randomWalk(ppd, seed, kLongestWalk)}, extent, seed);
    }
    return figures;
}

/// Each printer in one state.
Figures proveOnMadeUpPrinters(int printers, const Extent &extent)
{
    Figures figures;
    const QTemporaryDir folder;
    for (int index = 0; index < printers; ++index) {
        const quint32 seed = extent.seed + static_cast<quint32>(index);
        const QString path = folder.filePath(u"printer%1.ppd"_s.arg(index));
        Random random(seed, 2);
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(constrainedPrinter(random)) < 0)
            return figures;
        file.close();
        prove(figures, {path, randomWalk(path, seed, kLongestWalk)}, extent, seed);
    }
    return figures;
}

int number(const QCommandLineParser &line, const QString &option)
{
    return line.value(option).toInt();
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QCommandLineParser line;
    line.addOptions({
        {u"states"_s, u"of each sample printer"_s, u"number"_s, u"20"_s},
        {u"pairs"_s, u"states in which all pairs are tried"_s, u"number"_s, u"0"_s},
        {u"triples"_s, u"states in which all triples are tried"_s, u"number"_s, u"0"_s},
        {u"most"_s, u"choices of each state"_s, u"number"_s, u"1000"_s},
        {u"printers"_s, u"that are made up"_s, u"number"_s, u"500"_s},
        {u"ppd"_s, u"in place of the sample printers"_s, u"file"_s},
        {u"seed"_s, u"of the first state"_s, u"number"_s, u"13"_s},
    });
    line.addHelpOption();
    line.process(application);
    Extent extent{number(line, u"states"_s), number(line, u"pairs"_s), number(line, u"triples"_s),
                  number(line, u"most"_s), line.value(u"seed"_s).toUInt()};
    QStringList ppds{line.value(u"ppd"_s)};
    if (!line.isSet(u"ppd"_s))
        ppds = {samplePPD(u"velkaro-px-t900"_s), samplePPD(u"velkaro-mx-j710dw"_s),
                samplePPD(u"velkaro-px-330c"_s)};
    int wrong = 0;
    for (const QString &ppd : ppds) {
        const Figures figures = proveOn(ppd, extent);
        print(ppd.section(u'/', -1), figures);
        wrong += figures.wrong;
    }
    extent.states = number(line, u"printers"_s);
    extent.pairs = extent.triples = extent.states;
    const Figures madeUp = proveOnMadeUpPrinters(extent.states, extent);
    print(u"made up"_s, madeUp);
    return wrong + madeUp.wrong == 0 ? 0 : 1;
}
