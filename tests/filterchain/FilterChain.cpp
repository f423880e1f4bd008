#include "tests/filterchain/FilterChain.h"

#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The options as cupsd hands them to a filter.
QString optionText(const QList<JobOption> &options)
{
    QStringList words;
    for (const JobOption &option : options)
        words += option.name + u'=' + option.value;
    return words.join(u' ');
}

} // namespace

bool runTool(const QString &program, const QStringList &arguments, const QString &output,
             const QMap<QString, QString> &variables)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (auto variable = variables.cbegin(); variable != variables.cend(); ++variable)
        environment.insert(variable.key(), variable.value());
    process.setProcessEnvironment(environment);
    process.setStandardOutputFile(output);
    process.start(program, arguments);
    const bool isDone = process.waitForFinished() && process.exitStatus() == QProcess::NormalExit &&
                        process.exitCode() == 0;
    EXPECT_TRUE(isDone) << program.toStdString() << ": "
                        << process.readAllStandardError().toStdString();
    return isDone;
}

bool printPages(const QString &ppdPath, const QString &documentPath, const QByteArray &type,
                const QList<JobOption> &options, const QString &output)
{
    const QTemporaryDir folder;
    const QString text = optionText(options);
    const auto filter = [&](const QString &name, const QString &input, const QString &into,
                            const QByteArray &ofType) {
        return runTool(QStringLiteral(FILTER_FOLDER "/") + name,
                       {u"1"_s, u"user"_s, u"title"_s, u"1"_s, text, input}, into,
                       {{u"PPD"_s, ppdPath}, {u"CONTENT_TYPE"_s, QString::fromLatin1(ofType)}});
    };
    if (type == "application/pdf")
        return filter(u"pdftopdf"_s, documentPath, output, type);
    const QString pages = folder.filePath(u"pages.pdf"_s);
    return filter(u"imagetopdf"_s, documentPath, pages, type) &&
           filter(u"pdftopdf"_s, pages, output, "application/pdf");
}
