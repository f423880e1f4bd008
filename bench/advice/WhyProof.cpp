// Whether what is said of choices that are not to be had is true, found out by trying everything:
// by chance states of the sample printers and of made-up ones with constraints,
//   - a remedy gives the choice in a session that is opened anew;
//   - where it has two changes no single one does, where it has three no two do;
//   - where nothing is said to give it no single change does, nor two, nor three.
// States have numbers: a run can be cut into several, and goes on where it ended.
#include "tests/adviceproof/AdviceProof.h"
#include "tests/adviceproof/ConstrainedPrinter.h"
#include "tests/adviceproof/ReducedPrinter.h"
#include "tests/built/BuiltFiles.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QApplication>

#include <cstdio>
#include <cstdlib>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr int kLongestWalk = 6;

constexpr int kStatesOfALine = 100;

/// Which states are looked at, and of how many of the first ones more is tried.
struct Extent
{
    int from = 0;
    int states = 0;
    int pairs = 0;   ///< sets of two, where three are said to be needed
    int triples = 0; ///< sets of two and of three, where nothing is said to give the choice
    int most = 0;    ///< choices of a state
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
    QSet<QByteArray> seen;
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

void count(Figures &figures, const ProofState &state, const Proof &proof)
{
    const Advice &advice = proof.advice;
    if (advice.outcome == Advice::Outcome::Unknown) {
        ++figures.unknown;
        return;
    }
    if (advice.outcome == Advice::Outcome::Impossible)
        ++figures.impossible;
    else
        ++figures.remedies[advice.remedies.constFirst().changes.size()];
    for (int size = 1; size <= proof.tried; ++size)
        ++figures.tried[size];
    if (advice.outcome == Advice::Outcome::Possible && !proof.isGiven)
        tellWrong(figures, state, advice, u"a remedy does not give it"_s);
    if (!proof.smaller.isEmpty())
        tellWrong(figures, state, advice, u"it is given by "_s + words(proof.smaller));
    if (!proof.unlike.isEmpty())
        tellWrong(figures, state, advice, u"tried alone it is otherwise: "_s + words(proof.unlike));
}

void prove(Figures &figures, const ProofState &state, const Extent &extent, int index)
{
    ++figures.states;
    const ProofExtent one{extent.most, extent.seed + static_cast<quint32>(index),
                          index < extent.triples ? 3 : 1, index < extent.pairs};
    for (const Proof &proof : proofsIn(state, one, figures.seen))
        count(figures, state, proof);
}

void print(const QString &what, const Extent &extent, const Figures &figures)
{
    std::printf(
        "%-20s states from %d on: %d, %d different; remedies of one %d, two %d, three %d; "
        "impossible %d, unknown %d; all singles tried for %d, pairs %d, triples %d; wrong %d\n",
        qPrintable(what), extent.from, figures.states, static_cast<int>(figures.seen.size()),
        figures.remedies[1], figures.remedies[2], figures.remedies[3], figures.impossible,
        figures.unknown, figures.tried[1], figures.tried[2], figures.tried[3], figures.wrong);
    std::fflush(stdout);
}

/// The walk of the state of that index on the printer that `printerOf` gives for it. Gives how much
/// was wrong.
int proveAll(const QString &what, const Extent &extent,
             const std::function<QString(int index)> &printerOf)
{
    Figures figures;
    for (int index = extent.from; index < extent.from + extent.states; ++index) {
        const QString ppd = printerOf(index);
        const quint32 seed = extent.seed + static_cast<quint32>(index);
        prove(figures, {ppd, randomWalk(ppd, seed, kLongestWalk)}, extent, index);
        if (figures.states % kStatesOfALine == 0 && figures.states < extent.states)
            print(what, extent, figures);
    }
    if (extent.states > 0)
        print(what, extent, figures);
    return figures.wrong;
}

QString written(const QString &path, const QByteArray &text)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.flush()) {
        std::fprintf(stderr, "%s: %s\n", qPrintable(path), qPrintable(file.errorString()));
        std::exit(1);
    }
    return path;
}

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Each printer in one state.
int proveOnMadeUpPrinters(const Extent &extent)
{
    const QTemporaryDir folder;
    return proveAll(u"made up"_s, extent, [&](int index) {
        Random random(extent.seed + static_cast<quint32>(index), 2);
        return written(folder.filePath(u"printer.ppd"_s), constrainedPrinter(random));
    });
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
        {u"states"_s, u"of each printer"_s, u"number"_s, u"20"_s},
        {u"from"_s, u"the first state, to go on where a run has ended"_s, u"number"_s, u"0"_s},
        {u"pairs"_s, u"first states in which pairs are tried against three"_s, u"number"_s, u"0"_s},
        {u"triples"_s, u"first states in which all is tried against nothing"_s, u"number"_s,
         u"0"_s},
        {u"most"_s, u"choices of each state"_s, u"number"_s, u"1000"_s},
        {u"printers"_s, u"that are made up"_s, u"number"_s, u"500"_s},
        {u"ppd"_s, u"in place of the sample printers"_s, u"file"_s},
        {u"choices"_s, u"to which printers are reduced"_s, u"number"_s},
        {u"seed"_s, u"of the first state"_s, u"number"_s, u"13"_s},
    });
    line.addHelpOption();
    line.process(application);
    Extent extent{number(line, u"from"_s),  number(line, u"states"_s),
                  number(line, u"pairs"_s), number(line, u"triples"_s),
                  number(line, u"most"_s),  line.value(u"seed"_s).toUInt()};
    QStringList ppds{line.value(u"ppd"_s)};
    if (!line.isSet(u"ppd"_s))
        ppds = {samplePPD(u"velkaro-px-t900"_s), samplePPD(u"velkaro-mx-j710dw"_s),
                samplePPD(u"velkaro-px-330c"_s)};
    const QTemporaryDir folder;
    int wrong = 0;
    for (const QString &ppd : ppds) {
        const QString name = ppd.section(u'/', -1);
        const QString used =
            line.isSet(u"choices"_s)
                ? written(folder.filePath(name),
                          reducedPrinter(contentsOf(ppd), number(line, u"choices"_s)))
                : ppd;
        wrong += proveAll(name, extent, [&](int) { return used; });
    }
    extent.states = number(line, u"printers"_s);
    wrong += proveOnMadeUpPrinters(extent);
    return wrong == 0 ? 0 : 1;
}
