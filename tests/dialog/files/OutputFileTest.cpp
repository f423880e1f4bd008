#include "dialog/files/OutputFile.h"

#include "dialog/files/PathBytes.h"
#include "tests/support/FileSizeLimit.h"
#include "tests/support/Files.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QScopeGuard>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class OutputFileIn : public testing::Test
{
protected:
    QString path(const QString &name) const { return m_folder.filePath(name); }

    QString existing(const QString &name, const QByteArray &text = "precious")
    {
        writeFile(path(name), text);
        return path(name);
    }

    /// All names in the folder, those of temporary files too.
    QStringList names() const
    {
        return QDir(m_folder.path())
            .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System);
    }

    /// Writes the file from beginning to end; its fault, or null.
    QString write(const QString &name, const QByteArray &text,
                  OutputFile::Appears appears = OutputFile::Appears::WhenWhole)
    {
        OutputFile file;
        return file.open(name, m_terms, appears)
            .andThen([&] { return file.write(text); })
            .andThen([&] { return file.commit(); })
            .sentence();
    }

    QTemporaryDir m_folder;
    OutputTerms m_terms;
};

TEST_F(OutputFileIn, IsThereWhenItIsWhole)
{
    OutputFile file;
    ASSERT_TRUE(file.open(path(u"new"_s), m_terms));
    ASSERT_TRUE(file.write("one "));
    EXPECT_FALSE(QFileInfo::exists(path(u"new"_s)));
    ASSERT_TRUE(file.write("two"));
    ASSERT_EQ(file.commit().sentence(), QString());
    EXPECT_EQ(readFile(path(u"new"_s)), "one two");
    EXPECT_EQ(names(), QStringList{u"new"_s});
    EXPECT_EQ(file.identity(), identityOf(path(u"new"_s)));
}

TEST_F(OutputFileIn, HasThePermissionsThatTheUsersMaskLeaves)
{
    const mode_t before = umask(027);
    const auto restore = qScopeGuard([before] { umask(before); });
    EXPECT_EQ(write(path(u"new"_s), "x"), QString());
    struct stat status = {};
    ASSERT_EQ(stat(path(u"new"_s).toUtf8().constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0640U);
}

TEST_F(OutputFileIn, ThatIsNotCommittedLeavesNothing)
{
    for (const auto appears : {OutputFile::Appears::WhenWhole, OutputFile::Appears::AtOnce}) {
        OutputFile file;
        ASSERT_TRUE(file.open(path(u"new"_s), m_terms, appears));
        EXPECT_TRUE(file.write("half"));
    }
    EXPECT_EQ(names(), QStringList());
}

TEST_F(OutputFileIn, MayBeReadWhileItIsWritten)
{
    OutputFile file;
    ASSERT_TRUE(file.open(path(u"new"_s), m_terms, OutputFile::Appears::AtOnce));
    ASSERT_TRUE(file.write("line\n"));
    EXPECT_EQ(readFile(path(u"new"_s)), "line\n");
    ASSERT_TRUE(file.commit());
    EXPECT_EQ(readFile(path(u"new"_s)), "line\n");
}

TEST_F(OutputFileIn, DoesNotReplaceAFileUnasked)
{
    const QString old = existing(u"old"_s);
    for (const auto appears : {OutputFile::Appears::WhenWhole, OutputFile::Appears::AtOnce})
        EXPECT_EQ(write(old, "new", appears),
                  u"The file %1 exists already; --force replaces it."_s.arg(old));
    EXPECT_EQ(readFile(old), "precious");
    EXPECT_EQ(names(), QStringList{u"old"_s});
}

TEST_F(OutputFileIn, DoesNotReplaceALinkThatLeadsNowhere)
{
    ASSERT_TRUE(QFile::link(path(u"nothing"_s), path(u"link"_s)));
    EXPECT_EQ(write(path(u"link"_s), "new"),
              u"The file %1 exists already; --force replaces it."_s.arg(path(u"link"_s)));
    EXPECT_EQ(names(), QStringList{u"link"_s});
}

TEST_F(OutputFileIn, DoesNotReplaceAFileThatAppearsMeanwhile)
{
    OutputFile file;
    ASSERT_TRUE(file.open(path(u"new"_s), m_terms));
    ASSERT_TRUE(file.write("mine"));
    existing(u"new"_s);
    EXPECT_FALSE(file.commit());
    EXPECT_EQ(file.verdict(), OutputVerdict::Exists);
    EXPECT_EQ(readFile(path(u"new"_s)), "precious");
}

TEST_F(OutputFileIn, ReplacesAFileWhenItIsWholeAndKeepsItsPermissions)
{
    const QString old = existing(u"old"_s);
    ASSERT_EQ(chmod(old.toUtf8().constData(), 0604), 0);
    m_terms.mayReplace = true;
    OutputFile file;
    ASSERT_TRUE(file.open(old, m_terms, OutputFile::Appears::AtOnce));
    ASSERT_TRUE(file.write("new"));
    EXPECT_EQ(readFile(old), "precious");
    ASSERT_TRUE(file.commit());
    EXPECT_EQ(readFile(old), "new");
    struct stat status = {};
    ASSERT_EQ(stat(old.toUtf8().constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0604U);
    EXPECT_EQ(names(), QStringList{u"old"_s});
}

TEST_F(OutputFileIn, ReplacesTheFileThatALinkLeadsTo)
{
    existing(u"old"_s);
    ASSERT_TRUE(QFile::link(path(u"old"_s), path(u"link"_s)));
    m_terms.mayReplace = true;
    EXPECT_EQ(write(path(u"link"_s), "new"), QString());
    EXPECT_EQ(readFile(path(u"old"_s)), "new");
    EXPECT_TRUE(QFileInfo(path(u"link"_s)).isSymLink());
}

TEST_F(OutputFileIn, ReplacesWhatTheRunHasWritten)
{
    OutputFile first;
    ASSERT_TRUE(first.open(path(u"own"_s), m_terms) && first.write("1") && first.commit());
    m_terms.written += *first.identity();
    EXPECT_EQ(write(path(u"own"_s), "2"), QString());
    EXPECT_EQ(readFile(path(u"own"_s)), "2");
}

TEST_F(OutputFileIn, IsNeverWrittenOverAnInputWhateverItsName)
{
    const QString input = existing(u"input"_s);
    ASSERT_TRUE(QFile::link(input, path(u"symbolic"_s)));
    ASSERT_EQ(link(input.toUtf8().constData(), path(u"hard"_s).toUtf8().constData()), 0);
    m_terms.addInput(input);
    m_terms.mayReplace = true;
    for (const QString &name :
         {input, path(u"symbolic"_s), path(u"hard"_s),
          path(u"./../"_s) + m_folder.path().section(u'/', -1) + u"/input"_s}) {
        EXPECT_EQ(write(name, "new"),
                  u"Nothing is written over %1: it is in use for this."_s.arg(name));
        EXPECT_EQ(readFile(input), "precious");
    }
}

TEST_F(OutputFileIn, IsNotWrittenOverAnInputThatTakesItsNameMeanwhile)
{
    const QString input = existing(u"input"_s);
    const QString old = existing(u"old"_s, "other");
    m_terms.addInput(input);
    m_terms.mayReplace = true;
    OutputFile file;
    ASSERT_TRUE(file.open(old, m_terms) && file.write("new"));
    ASSERT_EQ(rename(input.toUtf8().constData(), old.toUtf8().constData()), 0);
    EXPECT_FALSE(file.commit());
    EXPECT_EQ(file.verdict(), OutputVerdict::IsInput);
    EXPECT_EQ(readFile(old), "precious");
}

TEST_F(OutputFileIn, IsNotWrittenIntoAFileThatIsOpenAndAnInput)
{
    const QString input = existing(u"input"_s);
    m_terms.addInput(input);
    const FileDescriptor open(::open(input.toUtf8().constData(), O_WRONLY | O_APPEND));
    const QString name = u"/dev/fd/%1"_s.arg(open.get());
    EXPECT_EQ(write(name, "new"),
              u"Nothing is written over %1: it is in use for this."_s.arg(name));
    EXPECT_EQ(readFile(input), "precious");
}

TEST_F(OutputFileIn, GoesOnInAFileThatIsOpenAlready)
{
    const QString old = existing(u"old"_s);
    const FileDescriptor open(::open(old.toUtf8().constData(), O_WRONLY | O_APPEND));
    for (const QString &name :
         {u"/dev/fd/%1"_s.arg(open.get()), u"/proc/self/fd/%1"_s.arg(open.get())})
        EXPECT_EQ(write(name, "+"), QString());
    EXPECT_EQ(readFile(old), "precious++");
}

TEST_F(OutputFileIn, GoesToAPipeThatSomebodyReads)
{
    const QByteArray pipe = path(u"pipe"_s).toUtf8();
    ASSERT_EQ(mkfifo(pipe.constData(), 0600), 0);
    EXPECT_EQ(write(path(u"pipe"_s), "x"),
              u"The file %1 cannot be written: nobody reads from it."_s.arg(path(u"pipe"_s)));
    const FileDescriptor reader(::open(pipe.constData(), O_RDONLY | O_NONBLOCK));
    EXPECT_EQ(write(path(u"pipe"_s), "through"), QString());
    char bytes[16] = {};
    EXPECT_EQ(read(reader.get(), bytes, sizeof bytes), 7);
    EXPECT_STREQ(bytes, "through");
    EXPECT_EQ(names(), QStringList{u"pipe"_s});
}

TEST_F(OutputFileIn, APipeWhoseReaderGoesIsSaid)
{
    const QByteArray pipe = path(u"pipe"_s).toUtf8();
    ASSERT_EQ(mkfifo(pipe.constData(), 0600), 0);
    OutputFile file;
    {
        const FileDescriptor reader(::open(pipe.constData(), O_RDONLY | O_NONBLOCK));
        ASSERT_TRUE(file.open(path(u"pipe"_s), m_terms));
    }
    EXPECT_EQ(file.write("x").sentence(),
              u"The file %1 cannot be written: Broken pipe."_s.arg(path(u"pipe"_s)));
}

TEST_F(OutputFileIn, NeedsNoPermissionForADevice)
{
    EXPECT_EQ(write(u"/dev/null"_s, "x"), QString());
}

TEST_F(OutputFileIn, ADeviceWithoutRoomIsSaid)
{
    EXPECT_EQ(write(u"/dev/full"_s, "x"),
              u"The file /dev/full cannot be written: No space left on device."_s);
}

TEST_F(OutputFileIn, ADiskWithoutRoomKeepsWhatStoodThere)
{
    const QString old = existing(u"old"_s);
    m_terms.mayReplace = true;
    const FileSizeLimit limit(50000);
    for (const QString &name : {old, path(u"new"_s)})
        for (const auto appears : {OutputFile::Appears::WhenWhole, OutputFile::Appears::AtOnce})
            EXPECT_EQ(write(name, QByteArray(100000, 'x'), appears),
                      u"The file %1 cannot be written: File too large."_s.arg(name));
    EXPECT_EQ(readFile(old), "precious");
    EXPECT_EQ(names(), QStringList{u"old"_s});
}

TEST_F(OutputFileIn, OnceItCouldNotBeWrittenItIsNotCommitted)
{
    OutputFile file;
    ASSERT_TRUE(file.open(path(u"new"_s), m_terms));
    {
        const FileSizeLimit limit(10);
        EXPECT_FALSE(file.write(QByteArray(20, 'x')));
    }
    EXPECT_FALSE(file.write("y"));
    EXPECT_FALSE(file.commit());
    EXPECT_FALSE(QFileInfo::exists(path(u"new"_s)));
}

TEST_F(OutputFileIn, AFolderOrAMissingOneIsSaid)
{
    m_terms.mayReplace = true;
    EXPECT_EQ(write(m_folder.path(), "x"),
              u"%1 is a folder: it cannot be written."_s.arg(m_folder.path()));
    const QString nowhere = path(u"no/where"_s);
    EXPECT_EQ(write(nowhere, "x"),
              u"The file %1 cannot be written: No such file or directory."_s.arg(nowhere));
}

TEST_F(OutputFileIn, MayHaveTheLongestNameAndOneThatIsNotUtf8)
{
    const QString longest = path(QString(255, u'n'));
    EXPECT_EQ(write(longest, "x"), QString());
    EXPECT_EQ(readFile(longest), "x");
    const QByteArray bytes = m_folder.path().toUtf8() + "/\xE9t\xE9";
    EXPECT_EQ(write(pathOfBytes(bytes), "x"), QString());
    EXPECT_EQ(access(bytes.constData(), F_OK), 0);
    EXPECT_EQ(verdictAt(pathOfBytes(bytes), m_terms), OutputVerdict::Exists);
}

} // namespace
