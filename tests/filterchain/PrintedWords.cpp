#include "tests/filterchain/PrintedWords.h"

#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray outputOf(QProcess &process, const QString &program, const QStringList &arguments)
{
    process.start(program, arguments);
    const bool isDone = process.waitForFinished() && process.exitStatus() == QProcess::NormalExit &&
                        process.exitCode() == 0;
    EXPECT_TRUE(isDone) << program.toStdString() << ": "
                        << process.readAllStandardError().toStdString();
    return isDone ? process.readAllStandardOutput() : QByteArray();
}

} // namespace

QStringList printedWords(const QString &ppdPath, const QString &documentPath,
                         const QList<JobOption> &options)
{
    const QTemporaryDir folder;
    const QString printed = folder.filePath(u"printed.pdf"_s);
    QStringList words; // as cupsd hands them to a filter
    for (const JobOption &option : options)
        words += option.name + u'=' + option.value;
    QProcess filter;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"PPD"_s, ppdPath);
    environment.insert(u"CONTENT_TYPE"_s, u"application/pdf"_s);
    filter.setProcessEnvironment(environment);
    filter.setStandardOutputFile(printed);
    outputOf(filter, QStringLiteral(FILTER_FOLDER "/pdftopdf"),
             {u"1"_s, u"user"_s, u"title"_s, u"1"_s, words.join(u' '), documentPath});
    QProcess reader;
    const QString text = QString::fromUtf8(
        outputOf(reader, QStringLiteral(PDFTOTEXT), {u"-layout"_s, printed, u"-"_s}));
    QStringList sides;
    for (const QString &side : text.split(u'\f', Qt::SkipEmptyParts))
        sides += side.simplified();
    return sides;
}
