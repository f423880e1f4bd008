#include "tests/golden/ProgramUnderTest.h"

#include "tests/golden/PPDRecipe.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr int kLongestRun = 60000; // ms

/// Nothing of the machine's and the user's settings, but what a sanitizer and the loader need.
QProcessEnvironment cleanEnvironment()
{
    const QProcessEnvironment own = QProcessEnvironment::systemEnvironment();
    QProcessEnvironment environment;
    for (const QString &name : {u"PATH"_s, u"LD_LIBRARY_PATH"_s, u"TMPDIR"_s, u"ASAN_OPTIONS"_s,
                                u"UBSAN_OPTIONS"_s, u"LSAN_OPTIONS"_s})
        if (own.contains(name))
            environment.insert(name, own.value(name));
    environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    environment.insert(u"CUPS_SERVERROOT"_s, u"/nonexistent"_s);
    return environment;
}

} // namespace

QString ProgramUnderTest::root() const
{
    return QDir::cleanPath(QFileInfo(path).path() + u"/.."_s);
}

QDir ProgramUnderTest::ppdFolder() const
{
    return QDir(root() + u"/share/velkaro-print/ppd"_s);
}

QByteArray ProgramUnderTest::samplePPD(const QString &fileName) const
{
    QFile file(ppdFolder().filePath(fileName));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s: %s", qPrintable(file.fileName()), qPrintable(file.errorString()));
    return file.readAll();
}

QString Workplace::path(const QString &fileName) const
{
    return m_folder.filePath(fileName);
}

void Workplace::write(const QString &fileName, const QByteArray &bytes) const
{
    QDir().mkpath(QFileInfo(path(fileName)).path());
    QFile file(path(fileName));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("%s: %s", qPrintable(file.fileName()), qPrintable(file.errorString()));
}

QByteArray Workplace::read(const QString &fileName) const
{
    QFile file(path(fileName));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void Workplace::writePPD(const QString &fileName, const QJsonObject &recipe,
                         const ProgramUnderTest &program) const
{
    write(fileName, preparedPPD(recipe, program.samplePPD(baseOfRecipe(recipe))));
}

void Workplace::prepare(QProcess &process, const QString &language) const
{
    QProcessEnvironment environment = cleanEnvironment();
    environment.insert(u"HOME"_s, path(u"home"_s));
    environment.insert(u"LANGUAGE"_s, language);
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(m_folder.path());
}

QByteArray Workplace::withoutPlaces(QByteArray text, const ProgramUnderTest &program) const
{
    return text.replace(m_folder.path().toUtf8(), "/folder")
        .replace(program.root().toUtf8(), "/installed");
}

ProgramResult runToItsEnd(const ProgramUnderTest &program, const QStringList &arguments,
                          const Workplace &workplace, const QString &language)
{
    QProcess process;
    workplace.prepare(process, language);
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(program.path, arguments);
    const bool ended = process.waitForFinished(kLongestRun);
    if (!ended) {
        process.kill();
        process.waitForFinished();
    }
    const bool whole = ended && process.exitStatus() == QProcess::NormalExit;
    return {whole ? process.exitCode() : -1,
            workplace.withoutPlaces(process.readAllStandardOutput(), program),
            workplace.withoutPlaces(process.readAllStandardError(), program)};
}
