#include "dialog/job/SavedOptions.h"

#include "dialog/job/SavedFiles.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QSet>

#include <cups/cups.h>

#include <algorithm>
#include <utility>

namespace {

constexpr qsizetype kLongestLine = 8191; // bytes, as libcups reads them

/// A line whose options nobody has looked at yet.
struct UnreadLine
{
    QueueName name;
    bool isDefault = false;
    QByteArray options;
};

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

UnreadLine beginningOf(const QByteArray &written)
{
    const QByteArray line = withoutComment(written.left(kLongestLine));
    const QByteArray words = line.simplified();
    const qsizetype keywordEnd = words.indexOf(' ');
    const QByteArray keyword = words.left(keywordEnd).toLower();
    if (keywordEnd < 0 || (keyword != "dest" && keyword != "default"))
        return {};
    const QByteArray rest = line.trimmed().mid(keywordEnd).trimmed();
    const qsizetype nameEnd = rest.simplified().indexOf(' ');
    return {queueName(QString::fromUtf8(nameEnd < 0 ? rest : rest.left(nameEnd))),
            keyword == "default", nameEnd < 0 ? QByteArray() : rest.mid(nameEnd)};
}

/// The lines of all files, the user's own last.
QList<UnreadLine> savedLines()
{
    QList<UnreadLine> lines;
    for (const QString &path : lpoptionsFiles()) {
        const Result<QByteArray> text = lpoptionsText(path);
        const QByteArrayList written = text ? text->split('\n') : QByteArrayList();
        for (const QByteArray &line : written)
            if (UnreadLine unread = beginningOf(line); !unread.name.queue.isEmpty())
                lines += std::move(unread);
    }
    return lines;
}

/// Each option once, as it was said last.
QList<JobOption> lastOfEach(const QList<JobOption> &options)
{
    QSet<QString> names;
    QList<JobOption> last;
    std::for_each(options.crbegin(), options.crend(), [&](const JobOption &option) {
        if (!names.contains(option.name))
            last += option;
        names.insert(option.name);
    });
    std::ranges::reverse(last);
    return last;
}

} // namespace

bool isSameQueue(const QueueName &one, const QueueName &other)
{
    return one.queue.compare(other.queue, Qt::CaseInsensitive) == 0 &&
           one.instance.isNull() == other.instance.isNull() &&
           one.instance.compare(other.instance, Qt::CaseInsensitive) == 0;
}

Result<> checkInstance(const QueueName &name)
{
    const QList<QueueName> known = savedInstances();
    const bool isKnown =
        std::ranges::any_of(known, [&](const QueueName &one) { return isSameQueue(one, name); });
    if (name.instance.isNull() || isKnown)
        return {};
    if (const QStringList notes = notesOnLpoptions(); !notes.isEmpty())
        return Fault{FaultKind::Request, notes.constLast()};
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

SavedLine parseSavedLine(const QByteArray &line)
{
    const UnreadLine unread = beginningOf(line);
    return {unread.name, unread.isDefault, parseOptions(unread.options)};
}

QList<JobOption> savedOptions(const QueueName &name)
{
    const QList<UnreadLine> lines = savedLines();
    QList<JobOption> options;
    for (const UnreadLine &line : lines)
        if (isSameQueue(line.name, {name.queue, {}}))
            options += parseOptions(line.options);
    for (const UnreadLine &line : lines)
        if (!name.instance.isNull() && isSameQueue(line.name, name))
            options += parseOptions(line.options);
    return lastOfEach(options);
}

QList<QueueName> savedInstances()
{
    QSet<QString> names;
    QList<QueueName> instances;
    for (const UnreadLine &line : savedLines()) {
        const QString name = textOf(line.name).toCaseFolded();
        if (!line.name.instance.isNull() && !names.contains(name))
            instances += line.name;
        names.insert(name);
    }
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
    for (const UnreadLine &line : savedLines())
        if (line.isDefault)
            saved = line.name;
    return saved;
}

QueueName usualQueue()
{
    const QueueName byEnvironment = environmentQueue();
    return byEnvironment.queue.isEmpty() ? savedDefaultQueue() : byEnvironment;
}
