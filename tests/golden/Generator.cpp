// Makes random cases, records what a build of the program answers, and compares another build's
// answers with them; see README.md.
#include "tests/golden/Coverage.h"
#include "tests/golden/GoldenCase.h"
#include "tests/golden/RunMaker.h"
#include "tests/golden/Selection.h"
#include "tests/golden/SessionMaker.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

void print(const QString &text)
{
    std::fputs(text.toUtf8().constData(), stdout);
    std::fputc('\n', stdout);
}

QString caseName(const QString &kind, int number)
{
    return u"%1-%2"_s.arg(kind).arg(number, 4, 10, QLatin1Char('0'));
}

void writeCases(const ProgramUnderTest &program, const QCommandLineParser &line, const QDir &into)
{
    const auto seed = line.value(u"seed"_s).toUInt();
    const int sessions = line.value(u"sessions"_s).toInt();
    const int runs = line.value(u"runs"_s).toInt();
    for (int number = 1; number <= sessions; ++number)
        writeBytes(into.filePath(caseName(u"session"_s, number) + u".jsonl"_s),
                   randomScript(program, seed, static_cast<quint32>(number)));
    for (int number = 1; number <= runs; ++number)
        writeBytes(into.filePath(caseName(u"run"_s, number) + u".run"_s),
                   randomRun(program, seed, static_cast<quint32>(number)));
    print(u"%1 sessions and %2 runs"_s.arg(sessions).arg(runs));
}

void record(const ProgramUnderTest &program, const QDir &folder)
{
    const QStringList cases = casesIn(folder);
    for (const QString &path : cases)
        writeBytes(recordingPath(path), textOf(runCase(path, program)));
    print(u"%1 cases recorded"_s.arg(cases.size()));
}

int compare(const ProgramUnderTest &program, const QDir &folder)
{
    const QStringList cases = casesIn(folder);
    qsizetype different = 0;
    for (const QString &path : cases) {
        const QString difference = differenceOfCase(path, program);
        if (difference.isNull())
            continue;
        ++different;
        print(difference);
    }
    print(u"%1 of %2 cases differ"_s.arg(different).arg(cases.size()));
    return different == 0 && !cases.isEmpty() ? 0 : 1;
}

Recording recordingOf(const QString &casePath)
{
    return recordingOfText(bytesOf(recordingPath(casePath)));
}

void tellCoverage(const QDir &folder)
{
    Coverage all;
    qsizetype events = 0;
    for (const QString &path : casesIn(folder)) {
        const Recording recording = recordingOf(path);
        events += recording.events.size();
        addCoverage(all, coverageOfCase(path, recording));
    }
    print(u"%1 cases, %2 events\n"_s.arg(casesIn(folder).size()).arg(events) + coverageText(all));
}

void select(const QDir &from, const QDir &into, const QString &ending, int wanted)
{
    QList<Candidate> candidates;
    for (const QString &path : casesIn(from))
        if (path.endsWith(ending))
            candidates += {path, QFileInfo(path).size() + QFileInfo(recordingPath(path)).size(),
                           coverageOfCase(path, recordingOf(path))};
    for (const QString &path : selectedCases(candidates, wanted))
        for (const QString &file : {path, recordingPath(path)})
            writeBytes(into.filePath(QFileInfo(file).fileName()), bytesOf(file));
}

/// Leaves a script beside its PPDs, so that `velkaro-print --replay` runs it.
void unpack(const ProgramUnderTest &program, const QString &script, const QDir &into)
{
    const QByteArray bytes = bytesOf(script);
    const auto recipes = recipesOf(bytes);
    const Workplace workplace;
    for (auto recipe = recipes.begin(); recipe != recipes.end(); ++recipe) {
        workplace.writePPD(recipe.key(), recipe.value(), program);
        writeBytes(into.filePath(recipe.key()), workplace.read(recipe.key()));
    }
    writeBytes(into.filePath(QFileInfo(script).fileName()), bytes);
}

const QList<QCommandLineOption> kOptions{
    {u"sessions"_s, u"Write so many random sessions."_s, u"number"_s, u"0"_s},
    {u"runs"_s, u"Write so many random runs without the dialog."_s, u"number"_s, u"0"_s},
    {u"seed"_s, u"The seed of both."_s, u"number"_s, u"1"_s},
    {u"into"_s, u"Where files are written."_s, u"folder"_s},
    {u"record"_s, u"Record what the program answers to the folder's cases."_s, u"folder"_s},
    {u"compare"_s, u"Compare what it answers with the recordings."_s, u"folder"_s},
    {u"coverage"_s, u"Tell what occurs in the folder's recordings."_s, u"folder"_s},
    {u"select"_s,
     u"Copy the numbers of --sessions and --runs of the folder's cases that cover "
     u"most."_s,
     u"folder"_s},
    {u"unpack"_s, u"Write the script and its PPDs."_s, u"script"_s},
    {u"program"_s, u"The velkaro-print to use instead of this build's."_s, u"path"_s,
     QStringLiteral(VELKARO_PROGRAM)},
};

int run(const QCommandLineParser &line)
{
    const ProgramUnderTest program{QFileInfo(line.value(u"program"_s)).absoluteFilePath()};
    const QDir into(line.value(u"into"_s));
    if (!into.mkpath(u"."_s))
        qFatal("%s cannot be made", qPrintable(into.path()));
    if (line.isSet(u"record"_s))
        record(program, QDir(line.value(u"record"_s)));
    else if (line.isSet(u"compare"_s))
        return compare(program, QDir(line.value(u"compare"_s)));
    else if (line.isSet(u"coverage"_s))
        tellCoverage(QDir(line.value(u"coverage"_s)));
    else if (line.isSet(u"unpack"_s))
        unpack(program, line.value(u"unpack"_s), into);
    else if (line.isSet(u"select"_s)) {
        const QDir from(line.value(u"select"_s));
        select(from, into, u".jsonl"_s, line.value(u"sessions"_s).toInt());
        select(from, into, u".run"_s, line.value(u"runs"_s).toInt());
    } else
        writeCases(program, line, into);
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser line;
    line.setApplicationDescription(u"Random sessions, and what a build answers to them."_s);
    line.addHelpOption();
    line.addOptions(kOptions);
    line.process(application);
    return run(line);
}
