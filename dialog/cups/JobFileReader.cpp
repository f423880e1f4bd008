#include "dialog/cups/JobFileReader.h"

#include "dialog/cups/JobFileFormat.h"
#include "dialog/cups/JobOptions.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>

#include <algorithm>

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

/// The file's first lines, one after the other.
class Lines
{
public:
    explicit Lines(const Document &file) : m_file(file) {}

    /// The next line with its line break; without one where the file ends or the line is too long.
    QByteArray next()
    {
        QByteArray line(kLongestLine, Qt::Uninitialized);
        line.truncate(std::max<qint64>(0, m_file.read(m_end, line.data(), line.size())));
        if (const qsizetype lineBreak = line.indexOf('\n'); lineBreak >= 0)
            line.truncate(lineBreak + 1);
        m_end += line.size();
        return line;
    }

    /// Where the lines that were read end, in bytes.
    qint64 end() const { return m_end; }

private:
    const Document &m_file;
    qint64 m_end = 0;
};

Header readHeader(Lines &lines)
{
    Header header;
    lines.next(); // the first line, which isJobFile() has looked at
    for (QByteArray line = lines.next(); line.endsWith('\n'); line = lines.next()) {
        if (line.size() == 1) {
            header.isGood = !header.documents.isEmpty();
            return header;
        }
        if (!takeLine(header, QString::fromUtf8(line.chopped(1))))
            return header;
    }
    return header;
}

/// The name of a document that may have been called anything.
QString plainName(const QString &name)
{
    const QString plain = displayText(QFileInfo(name).fileName());
    return plain.isEmpty() ? QStringLiteral("document") : plain;
}

/// The documents behind the header, which fill the file to its end; none when they do not.
Documents partsOf(const Document &file, qint64 begin,
                  const QList<std::pair<qint64, QString>> &documents)
{
    Documents parts;
    for (const auto &[length, name] : documents) {
        if (length > file.size() - begin)
            return {};
        parts.push_back(file.part(begin, length, plainName(name)));
        begin += length;
    }
    return begin == file.size() ? parts : Documents();
}

} // namespace

bool isJobFile(const Document &file)
{
    return Lines(file).next() == QByteArray(kJobFileFirstLine) + '\n';
}

ReadJobFile readJobFile(const Document &file)
{
    ReadJobFile read;
    if (!isJobFile(file)) {
        read.error =
            jobFileSentence(QT_TRANSLATE_NOOP("JobFile", "%1 is no saved job."), file.path());
        return read;
    }
    Lines lines(file);
    const Header header = readHeader(lines);
    read.job = header.job;
    if (header.isGood)
        read.job.documents = partsOf(file, lines.end(), header.documents);
    if (read.job.documents.empty())
        read.error = jobFileSentence(QT_TRANSLATE_NOOP("JobFile", "The saved job %1 is damaged."),
                                     file.path());
    return read;
}
