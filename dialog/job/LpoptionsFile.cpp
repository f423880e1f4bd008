#include "dialog/job/LpoptionsFile.h"

#include "dialog/files/OutputFile.h"
#include "dialog/files/PathBytes.h"
#include "dialog/job/SavedFiles.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QLockFile>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kLongestNewLine = 8000; // bytes: libcups reads 8,191 of a line
constexpr int kLockTimeout = 5000;          // ms

/// The value as cupsParseOptions() reads it from a line of a file, in which a # begins a comment.
QByteArray quotedValue(const QString &value)
{
    QByteArray text = value.toUtf8();
    text.replace('\\', "\\\\").replace('"', "\\\"").replace('\'', "\\'").replace('#', "\\#");
    return '"' + text + '"';
}

QByteArray lineOf(const QueueName &name, bool isDefault, const QList<JobOption> &options)
{
    QByteArray line = (isDefault ? "Default " : "Dest ") + name.queue.toUtf8();
    if (!name.instance.isNull())
        line += '/' + name.instance.toUtf8();
    for (const JobOption &option : options)
        line += ' ' + option.name.toUtf8() + '=' + quotedValue(option.value);
    return line + '\n';
}

QByteArrayList linesOf(const QByteArray &text)
{
    QByteArrayList lines;
    for (qsizetype begin = 0; begin < text.size();) {
        const qsizetype end = text.indexOf('\n', begin);
        const qsizetype next = end < 0 ? text.size() : end + 1;
        lines += text.mid(begin, next - begin);
        begin = next;
    }
    return lines;
}

using NewLine = std::function<QByteArray(const QByteArray &line, const SavedLine &read)>;

/// The text with another line in the place of each of the queue's or instance's.
QByteArray withLines(const QByteArray &text, const QueueName &name, const NewLine &newLine)
{
    QByteArray changed;
    for (const QByteArray &line : linesOf(text)) {
        const SavedLine read = parseSavedLine(line);
        changed += isSameQueue(read.name, name) ? newLine(line, read) : line;
    }
    return changed;
}

Result<> write(const QString &path, const QByteArray &text)
{
    OutputTerms terms;
    terms.mayReplace = true;
    OutputFile file;
    return file.open(path, terms).andThen([&] { return file.write(text); }).andThen([&] {
        return file.commit();
    });
}

} // namespace

QString ownLpoptionsFile()
{
    return lpoptionsFiles().constLast();
}

QByteArray withSavedLine(const QByteArray &text, const QueueName &name,
                         const QList<JobOption> &options)
{
    bool isDefault = false;
    for (const QByteArray &line : linesOf(text)) {
        const SavedLine read = parseSavedLine(line);
        isDefault = isDefault || (read.isDefault && isSameQueue(read.name, name));
    }
    bool isWritten = false;
    QByteArray changed = withLines(text, name, [&](const QByteArray &, const SavedLine &) {
        return std::exchange(isWritten, true) ? QByteArray() : lineOf(name, isDefault, options);
    });
    if (isWritten)
        return changed;
    if (!changed.isEmpty() && !changed.endsWith('\n'))
        changed += '\n';
    return changed + lineOf(name, false, options);
}

QByteArray withoutSavedLine(const QByteArray &text, const QueueName &name)
{
    return withLines(text, name, [&](const QByteArray &, const SavedLine &read) {
        return read.isDefault ? lineOf({name.queue, {}}, true, {}) : QByteArray();
    });
}

QByteArray withRenamedLine(const QByteArray &text, const QueueName &name, const QString &instance)
{
    return withLines(text, name, [&](QByteArray line, const SavedLine &read) {
        const QByteArray former = '/' + read.name.instance.toUtf8();
        return line.replace(line.indexOf(former), former.size(), '/' + instance.toUtf8());
    });
}

bool hasSavedLine(const QByteArray &text, const QueueName &name)
{
    for (const QByteArray &line : linesOf(text))
        if (isSameQueue(parseSavedLine(line).name, name))
            return true;
    return false;
}

Result<> changeLpoptions(const std::function<Result<QByteArray>(const QByteArray &text)> &change)
{
    const QString path = ownLpoptionsFile();
    QDir().mkpath(QFileInfo(path).path());
    const QString lockPath = path + u".lock"_s;
    // Somebody's pipe in the place of the lock would keep whoever looks into it waiting.
    if (const Result<QByteArray> locked = lpoptionsText(lockPath); !locked)
        return locked.fault();
    QLockFile lock(lockPath);
    lock.setStaleLockTime(kLockTimeout);
    const bool isLocked = lock.tryLock(kLockTimeout);
    if (!isLocked && lock.error() == QLockFile::LockFailedError)
        return Fault{FaultKind::Output,
                     QCoreApplication::translate("LpoptionsFile",
                                                 "Another program is changing %1. Try again.")
                         .arg(shownPath(path))};
    const Result<QByteArray> former = lpoptionsText(path);
    if (!former)
        return former.fault();
    const Result<QByteArray> changed = change(*former);
    if (!changed)
        return changed.fault();
    for (const QByteArray &line : linesOf(*changed))
        if (line.size() > kLongestNewLine && !former->contains(line))
            return Fault{FaultKind::Output,
                         QCoreApplication::translate("LpoptionsFile",
                                                     "These are too many settings for one name.")};
    return write(path, *changed);
}
