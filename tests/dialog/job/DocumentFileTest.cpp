#include "dialog/files/PathBytes.h"
#include "tests/support/Documents.h"
#include "tests/support/Files.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

#include <array>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

using namespace Qt::StringLiterals;

namespace {

/// A file of some kind under the path.
struct Kind
{
    const char *name;
    void (*make)(const QString &path);
    const char *sentence; ///< %1: the path
};

void PrintTo(const Kind &row, std::ostream *out)
{
    *out << row.name;
}

void makeSocket(const QString &path)
{
    const FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM, 0));
    sockaddr_un address{AF_UNIX, {}};
    const QByteArray bytes = path.toUtf8();
    ASSERT_LT(static_cast<std::size_t>(bytes.size()), sizeof address.sun_path);
    std::copy(bytes.begin(), bytes.end(), address.sun_path);
    ASSERT_EQ(bind(socket.get(), reinterpret_cast<sockaddr *>(&address), sizeof address), 0);
}

TEST(DocumentFile, MoreFilesThanAreUsuallyOpenAtOnceAreOpened)
{
    const QTemporaryDir folder;
    rlimit usual = {};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &usual), 0);
    const rlimit few{128, usual.rlim_max};
    ASSERT_GT(few.rlim_max, 1000U);
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &few), 0);
    QStringList paths;
    for (int number = 0; number < 200; ++number) {
        paths += folder.filePath(QString::number(number));
        writeFile(paths.constLast(), "a");
    }
    const auto opened = openDocuments(paths);
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &usual), 0);
    ASSERT_TRUE(opened) << qPrintable(opened.sentence());
    EXPECT_EQ(opened->size(), 200U);
}

class NoDocument : public testing::TestWithParam<Kind>
{};

TEST_P(NoDocument, IsSaidAtOnce)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"x"_s);
    GetParam().make(path);
    const auto opened = openDocuments({path});
    EXPECT_EQ(opened.sentence(), QString::fromUtf8(GetParam().sentence).arg(path));
    EXPECT_EQ(opened.faultKind(), FaultKind::Document);
}

INSTANTIATE_TEST_SUITE_P(
    Table, NoDocument,
    testing::Values(Kind{"Nothing", [](const QString &) {}, "The document %1 does not exist."},
                    Kind{"Empty", [](const QString &path) { writeFile(path, ""); },
                         "The document %1 is empty."},
                    Kind{"Folder", [](const QString &path) { QDir().mkdir(path); },
                         "%1 is a folder, not a document."},
                    // Nobody writes into it: opening it as a file would wait for ever.
                    Kind{"NamedPipe", [](const QString &path) { mkfifo(qPrintable(path), 0600); },
                         "%1 is a named pipe, not a document."},
                    Kind{"Socket", makeSocket, "%1 is a socket, not a document."},
                    Kind{"Device", [](const QString &path) { QFile::link(u"/dev/zero"_s, path); },
                         "%1 is a device, not a document."},
                    Kind{"LinkThatLeadsNowhere",
                         [](const QString &path) { QFile::link(u"nowhere"_s, path); },
                         "The document %1 does not exist."},
                    Kind{"LinkToItself", [](const QString &path) { QFile::link(path, path); },
                         "The document %1 cannot be read: Too many levels of symbolic links."}),
    [](const auto &row) { return std::string(row.param.name); });

TEST(DocumentFile, NamesTheFirstThatCannotBeRead)
{
    const QTemporaryDir folder;
    const QString good = folder.filePath(u"good.ps"_s);
    writeFile(good, "%!PS\n");
    const auto opened = openDocuments({good, folder.path(), folder.filePath(u"missing"_s)});
    EXPECT_EQ(opened.sentence(), u"%1 is a folder, not a document."_s.arg(folder.path()));
}

TEST(DocumentFile, IsWhatWasOpenedWhateverStandsUnderItsNameNow)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"Holiday.ps"_s);
    writeFile(path, "first");
    const Document document = openedDocuments({path}).front();
    ASSERT_TRUE(QFile::remove(path));
    writeFile(path, "another one");
    EXPECT_EQ(document.name(), u"Holiday.ps"_s);
    EXPECT_EQ(document.size(), 5);
    EXPECT_EQ(bytesOf(document), "first");
    EXPECT_EQ(bytesOf(document), "first") << "read once more";
}

/// What a name that is not UTF-8 looks like to people.
struct FileName
{
    const char *name;
    QByteArray bytes;
    QString shown;
};

void PrintTo(const FileName &row, std::ostream *out)
{
    *out << row.name;
}

class DocumentNamed : public testing::TestWithParam<FileName>
{};

TEST_P(DocumentNamed, IsFoundByItsBytesAndShownAsText)
{
    const QTemporaryDir folder;
    const QByteArray path = folder.path().toUtf8() + '/' + GetParam().bytes;
    const FileDescriptor made(open(path.constData(), O_CREAT | O_WRONLY, 0600));
    ASSERT_EQ(write(made.get(), "text", 4), 4);
    EXPECT_EQ(bytesOfPath(pathOfBytes(path)), path);
    const Document document = openedDocuments({pathOfBytes(path)}).front();
    EXPECT_EQ(document.name(), GetParam().shown);
    EXPECT_EQ(document.path(), folder.filePath(GetParam().shown));
    EXPECT_EQ(bytesOf(document), "text");
    EXPECT_EQ(unlink(path.constData()), 0); // the folder is removed by names that are text
}

INSTANTIATE_TEST_SUITE_P(
    Table, DocumentNamed,
    testing::Values(FileName{"Ascii", "a.ps", u"a.ps"_s},
                    FileName{"Utf8", "\xe5\x86\x99.ps", u"写.ps"_s},
                    FileName{"Latin1", "Gr\xfc\xdf.ps", u"Gr\ufffd\ufffd.ps"_s},
                    FileName{"CutCharacter", "\xe5\x86\x99\xe5\x86", u"写\ufffd\ufffd"_s},
                    FileName{"EncodedSurrogate", "\xed\xb2\x80.ps", u"\ufffd\ufffd\ufffd.ps"_s},
                    FileName{"ByteOrderMark", "\xef\xbb\xbf.ps", u"\ufeff.ps"_s},
                    FileName{"LineBreak", "a\nb", u"a b"_s}),
    [](const auto &row) { return std::string(row.param.name); });

TEST(DocumentFile, ThatIsMissingIsNamedInPlainText)
{
    EXPECT_EQ(openDocuments({pathOfBytes("/nowhere/\xff\n.ps")}).sentence(),
              u"The document /nowhere/\ufffd .ps does not exist."_s);
}

// --- Files that are open already -----------------------------------------------------------------

/// Standard input is the descriptor, for as long as the object lives.
class StandardInput
{
public:
    explicit StandardInput(int descriptor) : m_before(fcntl(0, F_DUPFD_CLOEXEC, 3))
    {
        dup2(descriptor, 0);
    }
    ~StandardInput() { dup2(m_before.get(), 0); }

private:
    FileDescriptor m_before;
};

class OpenDescriptor : public testing::TestWithParam<const char *>
{
protected:
    static QString nameOf(const FileDescriptor &file)
    {
        return QString::fromUtf8(GetParam()).replace(u"%1"_s, QString::number(file.get()));
    }
};

TEST_P(OpenDescriptor, OfAPipeHasStillToBeRead)
{
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe(ends.data()), 0);
    const FileDescriptor reading(ends[0]);
    const FileDescriptor writing(ends[1]);
    const StandardInput input(reading.get());
    const Documents documents = openedDocuments({nameOf(reading)});
    ASSERT_EQ(documents.size(), 1);
    EXPECT_TRUE(documents[0].isPipe());
}

TEST_P(OpenDescriptor, OfAFileIsADocumentFromWhereItStands)
{
    const FileDescriptor file(open("/tmp", O_TMPFILE | O_RDWR, 0600));
    ASSERT_EQ(write(file.get(), "begin and end", 13), 13);
    ASSERT_EQ(lseek(file.get(), 6, SEEK_SET), 6);
    const StandardInput input(file.get());
    const Documents documents = openedDocuments({nameOf(file)});
    ASSERT_EQ(documents.size(), 1);
    EXPECT_FALSE(documents[0].isPipe());
    EXPECT_EQ(bytesOf(documents[0]), "and end");
}

INSTANTIATE_TEST_SUITE_P(Names, OpenDescriptor,
                         testing::Values("-", "/dev/stdin", "/dev/fd/0", "/dev/fd/%1",
                                         "/proc/self/fd/%1"));

TEST(DocumentFile, OfADescriptorThatIsNoDocumentIsSaid)
{
    const FileDescriptor device(open("/dev/null", O_RDONLY));
    const FileDescriptor writing(open("/tmp", O_TMPFILE | O_WRONLY, 0600));
    const FileDescriptor own(open("/proc/self/exe", O_RDONLY | O_CLOEXEC));
    const StandardInput input(device.get());
    const auto fd = [](const FileDescriptor &file) { return u"/dev/fd/%1"_s.arg(file.get()); };
    EXPECT_EQ(openDocuments({u"-"_s}).sentence(), u"Standard input is a device, not a document."_s);
    const QString unreadable = u"The document %1 cannot be read: Bad file descriptor."_s;
    for (const QString &path : {fd(writing), fd(own), u"/dev/fd/987654"_s})
        EXPECT_EQ(openDocuments({path}).sentence(), unreadable.arg(path));
    EXPECT_EQ(openDocuments({u"/dev/fd/x"_s}).sentence(),
              u"The document /dev/fd/x does not exist."_s);
}

} // namespace
