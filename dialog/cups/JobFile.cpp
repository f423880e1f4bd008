#include "dialog/cups/JobFile.h"

#include "dialog/cups/DocumentFile.h"
#include "dialog/cups/JobOptions.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>

#include <algorithm>
#include <array>

namespace {

constexpr auto kFirstLine = "Velkaro-Print-Job: 1";
constexpr qint64 kLongestLine = 8192;
// A buffered file forgets why it could not be flushed.
constexpr QIODevice::OpenMode kWriting = QIODevice::WriteOnly | QIODevice::Unbuffered;

QString sentence(const char *text, const QString &path, const QString &reason = QString())
{
    const QString translated = QCoreApplication::translate("JobFile", text);
    return reason.isNull() ? translated.arg(displayText(path))
                           : translated.arg(displayText(path), reason);
}

// --- Writing
// --------------------------------------------------------------------------------------

QByteArray headerLine(const char *field, const QString &value)
{
    return QByteArray(field) + ": " + displayText(value).toUtf8() + '\n';
}

QByteArray header(const JobRequest &job, const DocumentFiles &documents)
{
    QByteArray lines = QByteArray(kFirstLine) + '\n' + headerLine("Title", job.title);
    if (!job.queue.isNull())
        lines += headerLine("Queue", job.queue);
    for (const JobOption &option : job.options)
        lines += headerLine("Option", option.name + u'=' + option.value);
    for (const auto &document : documents)
        lines += headerLine(
            "Document",
            QStringLiteral("%1 %2").arg(document->size()).arg(QFileInfo(*document).fileName()));
    return lines + '\n';
}

/// A disk that is nearly full takes a part first, and says only then why it takes no more.
bool writeAll(QIODevice &to, const char *bytes, qint64 length)
{
    while (length > 0) {
        const qint64 taken = to.write(bytes, length);
        if (taken <= 0)
            return false;
        bytes += taken;
        length -= taken;
    }
    return true;
}

enum class Copied { All, CannotRead, CannotWrite };

Copied copy(QIODevice &from, QIODevice &to, qint64 length)
{
    std::array<char, 65536> buffer{};
    while (length > 0) {
        const qint64 wanted = std::min(length, static_cast<qint64>(buffer.size()));
        const qint64 got = from.read(buffer.data(), wanted);
        if (got <= 0)
            return Copied::CannotRead;
        if (!writeAll(to, buffer.data(), got))
            return Copied::CannotWrite;
        length -= got;
    }
    return Copied::All;
}

WrittenJobFile documentFault(const QString &error)
{
    return {JobFileFault::Document, error};
}

WrittenJobFile outputFault(const QFileDevice &file)
{
    return {JobFileFault::Output,
            sentence(QT_TRANSLATE_NOOP("JobFile", "The file %1 cannot be written: %2."),
                     file.fileName(), file.errorString())};
}

QString sequentialDocument(const DocumentFiles &documents)
{
    for (const auto &document : documents)
        if (document->isSequential())
            return sentence(
                QT_TRANSLATE_NOOP("JobFile", "%1 is no ordinary file: it cannot be kept in a job."),
                document->fileName());
    return {};
}

WrittenJobFile writeJob(QFileDevice &file, const JobRequest &job, const DocumentFiles &documents)
{
    const QByteArray lines = header(job, documents);
    if (!writeAll(file, lines.constData(), lines.size()))
        return outputFault(file);
    for (const auto &document : documents) {
        const Copied copied = copy(*document, file, document->size());
        if (copied == Copied::CannotWrite)
            return outputFault(file);
        if (copied == Copied::CannotRead)
            return documentFault(
                sentence(QT_TRANSLATE_NOOP("JobFile", "The document %1 cannot be read to its end."),
                         document->fileName()));
    }
    return {};
}

// --- Reading
// --------------------------------------------------------------------------------------

struct Header
{
    JobRequest job;
    QList<std::pair<qint64, QString>> documents; ///< length and name
    bool isGood = false;
};

bool takeDocument(Header &header, const QString &value)
{
    bool isNumber = false;
    const qint64 length = value.section(u' ', 0, 0).toLongLong(&isNumber);
    header.documents.append({length, value.section(u' ', 1)});
    return isNumber && length > 0;
}

bool takeOption(Header &header, const QString &value)
{
    const JobOption option{value.section(u'=', 0, 0), value.section(u'=', 1)};
    header.job.options += option;
    return mayTravel(option);
}

bool takeLine(Header &header, const QString &line)
{
    const QString field = line.section(QStringLiteral(": "), 0, 0);
    const QString value = line.section(QStringLiteral(": "), 1);
    if (field == QLatin1String("Title"))
        header.job.title = value;
    else if (field == QLatin1String("Queue"))
        header.job.queue = value;
    else if (field == QLatin1String("Option"))
        return takeOption(header, value);
    else if (field == QLatin1String("Document"))
        return takeDocument(header, value);
    else
        return false;
    return true;
}

Header readHeader(QFile &file)
{
    Header header;
    file.readLine(kLongestLine); // the first line, which isJobFile() has looked at
    while (!file.atEnd()) {
        const QByteArray line = file.readLine(kLongestLine).chopped(1);
        if (line.isEmpty()) {
            header.isGood = !header.documents.isEmpty();
            return header;
        }
        if (!takeLine(header, QString::fromUtf8(line)))
            return header;
    }
    return header;
}

/// The document in a folder of its own, so that it keeps its name.
QString extract(QFile &file, const QDir &folder, qsizetype index, qint64 length,
                const QString &name)
{
    const QString own = folder.filePath(QString::number(index));
    const QString plain = QFileInfo(name).fileName();
    const bool isUsable = !plain.isEmpty() && plain != QLatin1String("..");
    QFile document(own + u'/' + (isUsable ? plain : QStringLiteral("document")));
    const bool done = QDir().mkpath(own) && document.open(QIODevice::WriteOnly) &&
                      copy(file, document, length) == Copied::All && document.flush();
    return done ? document.fileName() : QString();
}

} // namespace

WrittenJobFile writeJobFile(const QString &path, const JobRequest &job)
{
    const OpenedDocuments documents = openDocuments(job.documents);
    if (!documents.error.isNull())
        return documentFault(documents.error);
    const QString sequential = sequentialDocument(documents.files);
    if (!sequential.isNull())
        return documentFault(sequential);
    // Only an ordinary file can be replaced as a whole: a device or a pipe is written to.
    const QFileInfo old(path);
    if (old.exists() && !old.isFile() && !old.isDir()) {
        QFile file(path);
        const bool isOpen = file.open(kWriting);
        return isOpen ? writeJob(file, job, documents.files) : outputFault(file);
    }
    QSaveFile file(path);
    if (!file.open(kWriting))
        return outputFault(file);
    WrittenJobFile written = writeJob(file, job, documents.files);
    if (written.fault != JobFileFault::None)
        return written;
    return file.commit() ? written : outputFault(file);
}

bool isJobFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && !file.isSequential() &&
           file.readLine(kLongestLine) == QByteArray(kFirstLine) + '\n';
}

ReadJobFile readJobFile(const QString &path)
{
    ReadJobFile read;
    QFile file(path);
    if (!isJobFile(path) || !file.open(QIODevice::ReadOnly)) {
        read.error = sentence(QT_TRANSLATE_NOOP("JobFile", "%1 is no saved job."), path);
        return read;
    }
    const Header header = readHeader(file);
    read.job = header.job;
    read.folder = std::make_unique<QTemporaryDir>();
    bool isWhole = header.isGood;
    for (const auto &[length, name] : header.documents) {
        const QString document = isWhole ? extract(file, QDir(read.folder->path()),
                                                   read.job.documents.size(), length, name)
                                         : QString();
        isWhole = !document.isNull();
        read.job.documents += document;
    }
    if (!isWhole || !file.atEnd())
        read.error = sentence(QT_TRANSLATE_NOOP("JobFile", "The saved job %1 is damaged."), path);
    return read;
}
