#include "dialog/job/JobFileReader.h"
#include "dialog/job/JobFileWriter.h"
#include "tests/endtoend/JobPrinting.h"
#include "tests/support/Documents.h"
#include "tests/support/FileSizeLimit.h"
#include "tests/support/Files.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class JobFileAt : public testing::Test
{
protected:
    JobFileAt() { m_terms.mayReplace = true; }

    QString write(const QString &name, const QByteArray &bytes)
    {
        writeFile(m_folder.filePath(name), bytes);
        return m_folder.filePath(name);
    }

    JobRequest job()
    {
        JobRequest request;
        request.queue = u"photo"_s;
        request.title = u"Holiday"_s;
        request.options = {{u"PageSize"_s, u"A4.Fullbleed"_s}, {u"x.y"_s, u"a=b: c"_s}};
        request.documents =
            openedDocuments({write(u"one.pdf"_s, QByteArray("%PDF\n\nfirst\0x", 13)),
                             write(u"two.txt"_s, "second")});
        return request;
    }

    Result<> keep(const QString &path, const JobRequest &request)
    {
        return writeJobFile(path, request, m_terms, m_guard, m_progress);
    }

    CallGuard m_guard;
    JobProgress m_progress;
    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(u"out.job"_s);
    OutputTerms m_terms;
};

TEST_F(JobFileAt, HoldsSettingsAndDocumentsForPeopleToRead)
{
    ASSERT_EQ(keep(m_path, job()).sentence(), QString());
    EXPECT_EQ(readFile(m_path), QByteArray("Velkaro-Print-Job: 1\n"
                                           "Title: Holiday\n"
                                           "Queue: photo\n"
                                           "Option: PageSize=A4.Fullbleed\n"
                                           "Option: x.y=a=b: c\n"
                                           "Document: 13 one.pdf\n"
                                           "Document: 6 two.txt\n"
                                           "\n") +
                                    QByteArray("%PDF\n\nfirst\0x", 13) + "second");
}

TEST_F(JobFileAt, HoldsEveryNameOnALineOfItsOwn)
{
    JobRequest odd = job();
    odd.title = u"A\nOption: raw=true\u202E"_s;
    odd.documents = openedDocuments({write(u"x\nTitle: y\u001B.ps"_s, "second")});
    odd.options.clear();
    ASSERT_EQ(keep(m_path, odd).sentence(), QString());
    EXPECT_EQ(readFile(m_path), "Velkaro-Print-Job: 1\n"
                                "Title: A Option: raw=true\n"
                                "Queue: photo\n"
                                "Document: 6 x Title: y .ps\n"
                                "\n"
                                "second");
}

TEST_F(JobFileAt, GivesTheJobBack)
{
    const JobRequest written = job();
    ASSERT_EQ(keep(m_path, written).sentence(), QString());
    const auto read = readJobFile(openedDocuments({m_path}).front());
    ASSERT_EQ(read.sentence(), QString());
    EXPECT_EQ(read->title, u"Holiday"_s);
    EXPECT_EQ(read->queue, u"photo"_s);
    EXPECT_EQ(read->options, written.options);
    ASSERT_EQ(read->documents.size(), 2);
    EXPECT_EQ(read->documents[0].name(), u"one.pdf"_s);
    EXPECT_EQ(bytesOf(read->documents[0]), QByteArray("%PDF\n\nfirst\0x", 13));
    EXPECT_EQ(read->documents[1].name(), u"two.txt"_s);
    EXPECT_EQ(bytesOf(read->documents[1]), "second");
}

struct Change
{
    const char *name;
    qint64 size; ///< of what was 6 bytes long
};

void PrintTo(const Change &row, std::ostream *out)
{
    *out << row.name;
}

class ChangedDocument : public JobFileAt, public testing::WithParamInterface<Change>
{};

TEST_P(ChangedDocument, IsSaidAndKeepsWhatStoodThere)
{
    write(u"out.job"_s, "precious");
    const JobRequest request = job();
    ASSERT_TRUE(QFile::resize(m_folder.filePath(u"two.txt"_s), GetParam().size));
    const auto written = keep(m_path, request);
    EXPECT_EQ(written.faultKind(), FaultKind::Document);
    EXPECT_EQ(written.sentence(),
              u"The document %1 has become shorter or longer since it was opened."_s.arg(
                  m_folder.filePath(u"two.txt"_s)));
    EXPECT_EQ(readFile(m_path), "precious");
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files),
              (QStringList{u"one.pdf"_s, u"out.job"_s, u"two.txt"_s}));
}

INSTANTIATE_TEST_SUITE_P(Table, ChangedDocument,
                         testing::Values(Change{"Shorter", 5}, Change{"Empty", 0},
                                         Change{"Longer", 7}),
                         [](const auto &row) { return std::string(row.param.name); });

TEST_F(JobFileAt, HoldsTheDocumentThatWasOpenedWhateverStandsUnderItsNameNow)
{
    JobRequest request = job();
    request.documents = openedDocuments({write(u"two.txt"_s, "second")});
    ASSERT_TRUE(QFile::remove(m_folder.filePath(u"two.txt"_s)));
    write(u"two.txt"_s, "another, and longer");
    for (int time = 0; time < 2; ++time) {
        ASSERT_EQ(keep(m_path, request).sentence(), QString());
        EXPECT_TRUE(readFile(m_path).endsWith("Document: 6 two.txt\n\nsecond"));
    }
}

TEST_F(JobFileAt, AFolderThatIsNotThereIsSaid)
{
    const QString path = m_folder.filePath(u"nowhere/out.job"_s);
    const auto written = keep(path, job());
    EXPECT_EQ(written.faultKind(), FaultKind::Output);
    EXPECT_EQ(written.sentence(),
              u"The file %1 cannot be written: No such file or directory."_s.arg(path));
}

TEST_F(JobFileAt, ADiskWithoutRoomKeepsWhatStoodThere)
{
    write(u"out.job"_s, "precious");
    JobRequest large = job();
    large.documents = openedDocuments({write(u"large.ps"_s, QByteArray(100000, 'x'))});
    const FileSizeLimit limit(50000);
    const auto written = keep(m_path, large);
    EXPECT_EQ(written.faultKind(), FaultKind::Output);
    EXPECT_EQ(written.sentence(), u"The file %1 cannot be written: File too large."_s.arg(m_path));
    EXPECT_EQ(readFile(m_path), "precious");
}

TEST_F(JobFileAt, IsNotWrittenOverAFileUnasked)
{
    write(u"out.job"_s, "precious");
    const auto written = writeJobFile(m_path, job(), {}, m_guard, m_progress);
    EXPECT_EQ(written.faultKind(), FaultKind::Output);
    EXPECT_EQ(written.sentence(),
              u"The file %1 exists already; --force replaces it."_s.arg(m_path));
    EXPECT_EQ(readFile(m_path), "precious");
}

TEST_F(JobFileAt, IsNeverWrittenOverADocumentOfTheJob)
{
    const JobRequest request = job();
    const QString document = m_folder.filePath(u"two.txt"_s);
    const auto written = keep(document, request);
    EXPECT_EQ(written.faultKind(), FaultKind::Output);
    EXPECT_EQ(written.sentence(),
              u"Nothing is written over %1: it is in use for this."_s.arg(document));
    EXPECT_EQ(readFile(document), "second");
}

TEST_F(JobFileAt, ADeviceWithoutRoomIsSaidAndStaysADevice)
{
    const auto written = keep(u"/dev/full"_s, job());
    EXPECT_EQ(written.faultKind(), FaultKind::Output);
    EXPECT_TRUE(written.sentence().startsWith(u"The file /dev/full cannot be written: "_s))
        << written.sentence().toStdString();
    EXPECT_FALSE(QFileInfo(u"/dev/full"_s).isFile());
}

TEST_F(JobFileAt, IsNotReadWhenItIsCutShort)
{
    ASSERT_EQ(keep(m_path, job()).sentence(), QString());
    write(u"out.job"_s, readFile(m_path).chopped(1));
    EXPECT_EQ(readJobFile(openedDocuments({m_path}).front()).sentence(),
              u"The saved job %1 is cut short: its end is missing."_s.arg(m_path));
}

TEST_F(JobFileAt, IsNotWrittenWithMoreDocumentsThanCanBeRead)
{
    JobRequest large = job();
    large.documents = Documents(1001, large.documents[0]);
    const auto written = keep(m_path, large);
    EXPECT_EQ(written.faultKind(), FaultKind::Document);
    EXPECT_EQ(written.sentence(),
              u"%1 would have too many documents: 1000 are the most."_s.arg(m_path));
    EXPECT_FALSE(QFileInfo::exists(m_path));
    large.documents.pop_back();
    EXPECT_EQ(keep(m_path, large).sentence(), QString());
    EXPECT_EQ(readJobFile(openedDocuments({m_path}).front())->documents.size(), 1000);
}

TEST_F(JobFileAt, GivesDocumentsPlainNamesWhateverTheyAreCalled)
{
    const QString path = write(u"evil.job"_s, "Velkaro-Print-Job: 1\nDocument: 1 ../../../etc/x\n"
                                              "Document: 1 a/b\n\nab");
    const auto read = readJobFile(openedDocuments({path}).front());
    ASSERT_EQ(read.sentence(), QString());
    ASSERT_EQ(read->documents.size(), 2);
    EXPECT_EQ(read->documents[0].name(), u"x"_s);
    EXPECT_EQ(read->documents[1].name(), u"b"_s);
    EXPECT_EQ(bytesOf(read->documents[1]), "b");
}

TEST_F(JobFileAt, AnyOtherFileIsNoJob)
{
    const QString path = write(u"plain.pdf"_s, "%PDF-1.4\n");
    const Document file = openedDocuments({path}).front();
    EXPECT_FALSE(isJobFile(file));
    EXPECT_EQ(readJobFile(file).sentence(), u"%1 is no saved job."_s.arg(path));
}

TEST_F(JobFileAt, OneOfAnotherVersionIsNotPrintedAsText)
{
    const QString path = write(u"later.job"_s, "Velkaro-Print-Job: 2\nTitle: x\n\n");
    EXPECT_TRUE(isJobFile(openedDocuments({path}).front()));
}

} // namespace
