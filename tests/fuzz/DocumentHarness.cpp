#include "dialog/files/FileDescriptor.h"
#include "dialog/files/PathBytes.h"
#include "dialog/job/DocumentFile.h"
#include "dialog/job/JobFileReader.h"
#include "dialog/job/OutgoingText.h"
#include "dialog/printing/PrintJob.h"
#include "tests/fuzz/Harnesses.h"

#include <QtCore/QTemporaryDir>

#include <algorithm>
#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// A file of this name in a folder of its own, which goes with it.
class NamedFile
{
public:
    NamedFile(const QByteArray &name, const QByteArray &content)
        : m_path(folder() + '/' + name),
          m_file(open(m_path.constData(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0600))
    {
        const auto size = static_cast<std::size_t>(content.size());
        require(write(m_file.get(), content.constData(), size) == content.size(),
                "the harness can write its own file");
    }
    ~NamedFile() { unlink(m_path.constData()); }
    NamedFile(const NamedFile &) = delete;
    NamedFile &operator=(const NamedFile &) = delete;

    QString path() const { return pathOfBytes(m_path); }

private:
    static QByteArray folder()
    {
        static const QTemporaryDir folder;
        return folder.path().toLocal8Bit();
    }

    QByteArray m_path;
    FileDescriptor m_file;
};

/// The input's first line as a name that a file may have.
QByteArray nameOf(const QByteArray &firstLine)
{
    QByteArray name = firstLine.left(kLongestOutgoingText);
    name.replace('/', '_').replace('\0', '_');
    return name.isEmpty() || name == "." || name == ".." ? "document" : name;
}

void checkText(const QByteArray &text)
{
    const QString read = QString::fromUtf8(text);
    require(!text.isEmpty() && text.size() <= kLongestOutgoingText && read.toUtf8() == text &&
                std::ranges::none_of(
                    read, [](QChar one) { return one.category() == QChar::Other_Control; }),
            "every text that leaves is a short line of UTF-8");
}

} // namespace

/// The document is opened and read as it is, whatever its name and its bytes; its name leaves as
/// text.
void runDocument(const QByteArray &nameAndContent)
{
    const QByteArray firstLine =
        nameAndContent.first(std::max<qsizetype>(0, nameAndContent.indexOf('\n')));
    const QByteArray content =
        nameAndContent.sliced(std::min(nameAndContent.size(), firstLine.size() + 1));
    const NamedFile file(nameOf(firstLine), content);
    const auto opened = openDocuments({file.path()});
    require(opened.isGood() != content.isEmpty(), "every file but an empty one is a document");
    if (content.isEmpty())
        return;
    const Document &document = opened->front();
    require(isJobFile(document) == content.startsWith("Velkaro-Print-Job: "),
            "a saved job is known by the beginning of its first line");
    QByteArray read(content.size(), Qt::Uninitialized);
    require(document.read(0, read.data(), read.size()) == content.size() && read == content,
            "a document is read as it is");
    checkText(outgoingTitle(PrintJob(*opened).title()));
    checkText(outgoingDocumentName(document.name()));
}
