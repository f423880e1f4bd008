#include "tests/endtoend/NotingPrinters.h"

#include "dialog/host/PPDFile.h"
#include "tests/built/BuiltFiles.h"
#include "tests/support/Files.h"

#include <QtCore/QFile>

#include <cups/cups.h>

using namespace Qt::StringLiterals;

namespace {

// A note is whole as soon as it has its name.
constexpr auto kFilter = R"(#!/bin/sh
{ printf '%s\n%s\n' "$4" "$5"; env; } > "@FOLDER@/$1.part"
mv "@FOLDER@/$1.part" "@FOLDER@/$1.noted"
cat ${6:+"$6"} > /dev/null
)";

} // namespace

QMap<QString, QString> parsedOptions(const QByteArray &argument)
{
    cups_option_t *options = nullptr;
    const int count = cupsParseOptions(argument.constData(), 0, &options);
    QMap<QString, QString> parsed;
    for (int index = 0; index < count; ++index)
        parsed.insert(QString::fromUtf8(options[index].name),
                      QString::fromUtf8(options[index].value));
    cupsFreeOptions(count, options);
    return parsed;
}

QList<PPDMark> NotedJob::marks() const
{
    const Result<OpenedPPD> opened = openPPD(environment.value(u"PPD"_s));
    if (!opened)
        return {};
    cups_option_t *given = nullptr;
    int count = 0;
    for (auto option = options.cbegin(); option != options.cend(); ++option)
        count = cupsAddOption(option.key().toUtf8().constData(),
                              option.value().toUtf8().constData(), count, &given);
    cupsMarkOptions(opened->ppd.get(), count, given);
    cupsFreeOptions(count, given);
    return marksOf(opened->ppd.get());
}

NotingPrinters::NotingPrinters()
{
    const QString filter = m_server.folder() + u"/note"_s;
    const QByteArray folder = QFile::encodeName(m_server.folder() + u"/out"_s);
    writeFile(filter, QByteArray(kFilter).replace("@FOLDER@", folder));
    // The server runs none that somebody else might have written.
    QFile::setPermissions(filter, QFile::Permissions(0x5555));
}

bool NotingPrinters::addQueue(const QString &queue, const QString &sample)
{
    const QByteArray filter = QFile::encodeName(m_server.folder() + u"/note"_s);
    QByteArray text = readFile(samplePPD(sample));
    for (const char *type : {"text/plain", "application/postscript", "application/pdf"})
        text += "*cupsFilter: \"" + QByteArray(type) + " 0 " + filter + "\"\n";
    const QString ppd = m_server.folder() + u'/' + queue + u".ppd"_s;
    writeFile(ppd, text);
    return m_server.addQueue(queue, ppd);
}

NotedJob NotingPrinters::noted(const QString &queue, int job)
{
    NotedJob noted;
    if (m_server.waitForJob(queue, job) == 0)
        return noted;
    const QList<QByteArray> lines =
        readFile(u"%1/out/%2.noted"_s.arg(m_server.folder()).arg(job)).split('\n');
    noted.copies = lines.value(0).toInt();
    noted.options = parsedOptions(lines.value(1));
    for (const QByteArray &line : lines.mid(2))
        noted.environment.insert(QString::fromUtf8(line.left(line.indexOf('='))),
                                 QString::fromUtf8(line.mid(line.indexOf('=') + 1)));
    return noted;
}
