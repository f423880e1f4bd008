#include "dialog/cups/JobFileReader.h"

#include "dialog/cups/ByteCopy.h"
#include "dialog/cups/JobFileFormat.h"
#include "dialog/cups/JobOptions.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace {

constexpr qint64 kLongestLine = 8192;

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
                      copyBytes(file, document, length) == Copied::All && document.flush();
    return done ? document.fileName() : QString();
}

} // namespace

bool isJobFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && !file.isSequential() &&
           file.readLine(kLongestLine) == QByteArray(kJobFileFirstLine) + '\n';
}

ReadJobFile readJobFile(const QString &path)
{
    ReadJobFile read;
    QFile file(path);
    if (!isJobFile(path) || !file.open(QIODevice::ReadOnly)) {
        read.error = jobFileSentence(QT_TRANSLATE_NOOP("JobFile", "%1 is no saved job."), path);
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
        read.error =
            jobFileSentence(QT_TRANSLATE_NOOP("JobFile", "The saved job %1 is damaged."), path);
    return read;
}
