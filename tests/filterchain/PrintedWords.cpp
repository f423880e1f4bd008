#include "tests/filterchain/PrintedWords.h"

#include "tests/filterchain/FilterChain.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

using namespace Qt::StringLiterals;

QStringList printedWords(const QString &ppdPath, const QString &documentPath,
                         const QList<JobOption> &options)
{
    const QTemporaryDir folder;
    const QString printed = folder.filePath(u"printed.pdf"_s);
    QFile text(folder.filePath(u"words"_s));
    if (!printPages(ppdPath, documentPath, "application/pdf", options, printed) ||
        !runTool(QStringLiteral(PDFTOTEXT), {u"-layout"_s, printed, u"-"_s}, text.fileName()) ||
        !text.open(QIODevice::ReadOnly))
        return {};
    QStringList sides;
    for (const QString &side : QString::fromUtf8(text.readAll()).split(u'\f', Qt::SkipEmptyParts))
        sides += side.simplified();
    return sides;
}
