#include "dialog/job/SavedOptions.h"

#include "platform/toolkit/PlainText.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <cups/cups.h>

#include <algorithm>
#include <unistd.h>

namespace {

/// The lines of all files, the user's own last.
QList<SavedLine> savedLines()
{
    QList<SavedLine> lines;
    for (const QString &path : lpoptionsFiles()) {
        QFile file(path);
        // A pipe would keep whoever opens it waiting.
        if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
            continue;
        while (!file.atEnd()) {
            const SavedLine line = parseSavedLine(file.readLine());
            if (!line.name.queue.isEmpty())
                lines += line;
        }
    }
    return lines;
}

/// As libcups reads a line: a # begins a comment, unless a backslash stands before it.
QByteArray withoutComment(QByteArray line)
{
    for (qsizetype at = line.indexOf('#'); at >= 0; at = line.indexOf('#', at)) {
        if (at == 0 || line[at - 1] != '\\')
            return line.left(at);
        line.remove(at - 1, 1);
    }
    return line;
}

void put(QList<JobOption> &options, const QList<JobOption> &added)
{
    for (const JobOption &option : added) {
        options.removeIf([&](const JobOption &old) { return old.name == option.name; });
        options += option;
    }
}

QList<JobOption> parseOptions(const QByteArray &text)
{
    cups_option_t *parsed = nullptr;
    const int count = cupsParseOptions(text.constData(), 0, &parsed);
    QList<JobOption> options;
    for (int index = 0; index < count; ++index)
        options += JobOption{QString::fromUtf8(parsed[index].name),
                             QString::fromUtf8(parsed[index].value)};
    cupsFreeOptions(count, parsed);
    return options;
}

} // namespace

bool isSameQueue(const QueueName &one, const QueueName &other)
{
    return one.queue.compare(other.queue, Qt::CaseInsensitive) == 0 &&
           one.instance.isNull() == other.instance.isNull() &&
           one.instance.compare(other.instance, Qt::CaseInsensitive) == 0;
}

QStringList lpoptionsFiles()
{
    const QByteArray folder = qgetenv("CUPS_SERVERROOT");
    QStringList files{QString::fromLocal8Bit(folder.isEmpty() ? QByteArray("/etc/cups") : folder) +
                      QStringLiteral("/lpoptions")};
    const QByteArray home = qgetenv("HOME");
    if (!home.isEmpty())
        files += QString::fromLocal8Bit(home) + QStringLiteral("/.cups/lpoptions");
    return files;
}

Result<> checkInstance(const QueueName &name)
{
    const QList<QueueName> known = savedInstances();
    const bool isKnown =
        std::ranges::any_of(known, [&](const QueueName &one) { return isSameQueue(one, name); });
    if (name.instance.isNull() || isKnown)
        return {};
    return Fault{FaultKind::Request,
                 QCoreApplication::translate(
                     "SavedOptions", "There are no settings saved as \"%1\" for the printer %2.")
                     .arg(displayText(name.instance), displayText(name.queue))};
}

QueueName queueName(const QString &text)
{
    const qsizetype slash = text.indexOf(u'/');
    return {text.left(slash), slash < 0 ? QString() : text.mid(slash + 1)};
}

QString textOf(const QueueName &name)
{
    return name.instance.isNull() ? name.queue : name.queue + u'/' + name.instance;
}

SavedLine parseSavedLine(const QByteArray &written)
{
    const QByteArray line = withoutComment(written);
    const QByteArray words = line.simplified();
    const qsizetype keywordEnd = words.indexOf(' ');
    const QByteArray keyword = words.left(keywordEnd).toLower();
    if (keywordEnd < 0 || (keyword != "dest" && keyword != "default"))
        return {};
    const QByteArray rest = line.trimmed().mid(keywordEnd).trimmed();
    const qsizetype nameEnd = rest.simplified().indexOf(' ');
    return {queueName(QString::fromUtf8(nameEnd < 0 ? rest : rest.left(nameEnd))),
            keyword == "default",
            nameEnd < 0 ? QList<JobOption>() : parseOptions(rest.mid(nameEnd))};
}

QList<JobOption> savedOptions(const QueueName &name)
{
    const QList<SavedLine> lines = savedLines();
    QList<JobOption> options;
    for (const SavedLine &line : lines)
        if (isSameQueue(line.name, {name.queue, {}}))
            put(options, line.options);
    for (const SavedLine &line : lines)
        if (!name.instance.isNull() && isSameQueue(line.name, name))
            put(options, line.options);
    return options;
}

QList<QueueName> savedInstances()
{
    QList<QueueName> instances;
    for (const SavedLine &line : savedLines())
        if (!line.name.instance.isNull() &&
            std::ranges::none_of(instances,
                                 [&](const QueueName &one) { return isSameQueue(one, line.name); }))
            instances += line.name;
    return instances;
}

QueueName environmentQueue()
{
    const QString byLpdest = qEnvironmentVariable("LPDEST");
    if (!byLpdest.isEmpty())
        return queueName(byLpdest);
    // "lp" is what the variable says on systems where nobody has set it up.
    const QString byPrinter = qEnvironmentVariable("PRINTER");
    return byPrinter == QLatin1String("lp") ? QueueName() : queueName(byPrinter);
}

QueueName savedDefaultQueue()
{
    QueueName saved;
    for (const SavedLine &line : savedLines())
        if (line.isDefault)
            saved = line.name;
    return saved;
}

QueueName usualQueue()
{
    const QueueName byEnvironment = environmentQueue();
    return byEnvironment.queue.isEmpty() ? savedDefaultQueue() : byEnvironment;
}
