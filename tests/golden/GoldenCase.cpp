#include "tests/golden/GoldenCase.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtGui/QImage>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kRecipeStart = "# PPD ";
constexpr auto kScript = "script.jsonl"_L1;
constexpr auto kJob = "job"_L1;
constexpr qsizetype kLongestShown = 600; // bytes of a value

QByteArrayList lineByLine(const char *word, const QByteArray &text)
{
    QByteArrayList lines;
    for (const QByteArray &line : text.split('\n'))
        lines += QByteArray(word) + ' ' + line;
    if (text.isEmpty() || text.endsWith('\n'))
        lines.removeLast();
    return lines;
}

QByteArrayList endingOf(const ProgramResult &result)
{
    return QByteArrayList{"exit " + QByteArray::number(result.status)} +
           lineByLine("stderr", result.errors);
}

// By what they show: how a picture is packed is the library's affair.
QByteArrayList picturesIn(const Workplace &workplace)
{
    QByteArrayList lines;
    for (const QString &name : QDir(workplace.path(QString())).entryList({u"*.png"_s})) {
        const QImage image = QImage(workplace.path(name)).convertToFormat(QImage::Format_RGBA8888);
        const QByteArray pixels(reinterpret_cast<const char *>(image.constBits()),
                                image.sizeInBytes());
        lines += u"picture %1 %2x%3 "_s.arg(name).arg(image.width()).arg(image.height()).toUtf8() +
                 shortHash(pixels);
    }
    return lines;
}

Recording runScript(const QByteArray &script, const ProgramUnderTest &program)
{
    const Workplace workplace;
    const auto recipes = recipesOf(script);
    for (auto recipe = recipes.begin(); recipe != recipes.end(); ++recipe)
        workplace.writePPD(recipe.key(), recipe.value(), program);
    workplace.write(kScript, script);
    const ProgramResult result = runToItsEnd(program, {u"--replay"_s, kScript}, workplace, u"en"_s);
    return {recordedEvents(result.output), endingOf(result) + picturesIn(workplace)};
}

QByteArrayList jobIn(const Workplace &workplace)
{
    const QByteArray job = workplace.read(kJob);
    if (job.isEmpty())
        return {};
    const qsizetype headerEnd = job.indexOf("\n\n") + 1;
    const QByteArray documents = job.mid(headerEnd + 1);
    return lineByLine("job", job.left(headerEnd)) +
           QByteArrayList{"documents " + QByteArray::number(documents.size()) + ' ' +
                          shortHash(documents)};
}

Recording runCommand(const QJsonObject &run, const ProgramUnderTest &program)
{
    const Workplace workplace;
    const QJsonObject ppds = run["ppds"_L1].toObject();
    for (auto recipe = ppds.begin(); recipe != ppds.end(); ++recipe)
        workplace.writePPD(recipe.key(), recipe.value().toObject(), program);
    workplace.write(u"letter.pdf"_s, "%PDF-1.4\n% A letter.\n%%EOF\n");
    workplace.write(u"note.txt"_s, "A note.\n");
    if (run.contains("lpoptions"_L1))
        workplace.write(u"home/.cups/lpoptions"_s, run["lpoptions"_L1].toString().toUtf8());
    const ProgramResult result =
        runToItsEnd(program, run["arguments"_L1].toVariant().toStringList(), workplace,
                    run["language"_L1].toString(u"en"_s));
    return {{}, endingOf(result) + lineByLine("stdout", result.output) + jobIn(workplace)};
}

QByteArray shortened(const QByteArray &value)
{
    return value.size() <= kLongestShown ? value : value.left(kLongestShown) + "...";
}

/// The event's line and its number in the script.
QString whereInScript(const QByteArray &script, qsizetype event)
{
    const QByteArrayList events = eventLines(script);
    if (event < 1 || event > events.size())
        return {};
    const QByteArray &text = events[event - 1];
    qsizetype seen = 0;
    const QByteArrayList lines = script.split('\n');
    for (qsizetype number = 1; number <= lines.size(); ++number)
        if (!eventLines(lines[number - 1]).isEmpty() && ++seen == event)
            return u", event %1 in line %2: %3"_s.arg(event).arg(number).arg(
                QString::fromUtf8(text));
    return {};
}

} // namespace

QStringList casesIn(const QDir &folder)
{
    QStringList cases;
    for (const QString &name :
         folder.entryList({u"*.jsonl"_s, u"*.run"_s}, QDir::Files, QDir::Name))
        cases += folder.filePath(name);
    return cases;
}

QByteArray recipeComment(const QString &fileName, const QJsonObject &recipe)
{
    return kRecipeStart + fileName.toUtf8() + ": " +
           QJsonDocument(recipe).toJson(QJsonDocument::Compact) + '\n';
}

QHash<QString, QJsonObject> recipesOf(const QByteArray &script)
{
    QHash<QString, QJsonObject> recipes;
    for (const QByteArray &line : script.split('\n')) {
        const qsizetype colon = line.indexOf(": ");
        const auto start = static_cast<qsizetype>(qstrlen(kRecipeStart));
        if (line.startsWith(kRecipeStart) && colon > 0)
            recipes.insert(QString::fromUtf8(line.mid(start, colon - start)),
                           QJsonDocument::fromJson(line.mid(colon + 2)).object());
    }
    return recipes;
}

QByteArrayList eventLines(const QByteArray &script)
{
    QByteArrayList lines;
    for (const QByteArray &line : script.split('\n')) {
        const QByteArray content = line.trimmed();
        if (!content.isEmpty() && !content.startsWith('#'))
            lines += content;
    }
    return lines;
}

Recording runCase(const QString &casePath, const ProgramUnderTest &program)
{
    const QByteArray bytes = bytesOf(casePath);
    if (casePath.endsWith(".run"_L1))
        return runCommand(QJsonDocument::fromJson(bytes).object(), program);
    return runScript(bytes, program);
}

QString recordingPath(const QString &casePath)
{
    return casePath.left(casePath.lastIndexOf(u'.')) + u".answers"_s;
}

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s: %s", qPrintable(path), qPrintable(file.errorString()));
    return file.readAll();
}

void writeBytes(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("%s: %s", qPrintable(path), qPrintable(file.errorString()));
}

QString differenceOfCase(const QString &casePath, const ProgramUnderTest &program)
{
    const auto difference = firstDifference(recordingOfText(bytesOf(recordingPath(casePath))),
                                            runCase(casePath, program));
    if (!difference)
        return {};
    return QFileInfo(casePath).fileName() + whereInScript(bytesOf(casePath), difference->event) +
           u"\n  differs at "_s + difference->place + u"\n  expected "_s +
           QString::fromUtf8(shortened(difference->expected)) + u"\n  got      "_s +
           QString::fromUtf8(shortened(difference->got));
}
