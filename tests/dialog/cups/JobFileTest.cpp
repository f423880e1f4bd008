#include "dialog/cups/JobFileReader.h"
#include "dialog/cups/JobFileWriter.h"
#include "tests/endtoend/JobPrinting.h"
#include "tests/support/Files.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

/// Lets no file of this process grow further, as a full disk does.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        m_signal = std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_signal);
    }

private:
    rlimit m_before{};
    void (*m_signal)(int) = SIG_DFL;
};

class JobFileAt : public testing::Test
{
protected:
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
        request.documents = {write(u"one.pdf"_s, QByteArray("%PDF\n\nfirst\0x", 13)),
                             write(u"two.txt"_s, "second")};
        return request;
    }

    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(u"out.job"_s);
};

TEST_F(JobFileAt, HoldsSettingsAndDocumentsForPeopleToRead)
{
    ASSERT_EQ(writeJobFile(m_path, job()).error, QString());
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

TEST_F(JobFileAt, GivesTheJobBack)
{
    const JobRequest written = job();
    ASSERT_EQ(writeJobFile(m_path, written).error, QString());
    EXPECT_TRUE(isJobFile(m_path));
    const ReadJobFile read = readJobFile(m_path);
    ASSERT_EQ(read.error, QString());
    EXPECT_EQ(read.job.title, u"Holiday"_s);
    EXPECT_EQ(read.job.queue, u"photo"_s);
    EXPECT_EQ(read.job.options, written.options);
    ASSERT_EQ(read.job.documents.size(), 2);
    EXPECT_TRUE(read.job.documents[0].endsWith(u"/one.pdf"_s));
    EXPECT_EQ(readFile(read.job.documents[0]), readFile(written.documents[0]));
    EXPECT_EQ(readFile(read.job.documents[1]), "second");
}

TEST_F(JobFileAt, LeavesWhatStoodThereWhenADocumentIsMissing)
{
    write(u"out.job"_s, "precious");
    JobRequest broken = job();
    broken.documents += m_folder.filePath(u"missing.pdf"_s);
    const WrittenJobFile written = writeJobFile(m_path, broken);
    EXPECT_EQ(written.fault, JobFileFault::Document);
    EXPECT_EQ(written.error,
              u"The document %1 does not exist."_s.arg(broken.documents.constLast()));
    EXPECT_EQ(readFile(m_path), "precious");
}

TEST_F(JobFileAt, AFolderThatIsNotThereIsSaid)
{
    const QString path = m_folder.filePath(u"nowhere/out.job"_s);
    const WrittenJobFile written = writeJobFile(path, job());
    EXPECT_EQ(written.fault, JobFileFault::Output);
    EXPECT_EQ(written.error,
              u"The file %1 cannot be written: No such file or directory."_s.arg(path));
}

TEST_F(JobFileAt, ADiskWithoutRoomKeepsWhatStoodThere)
{
    write(u"out.job"_s, "precious");
    JobRequest large = job();
    large.documents = {write(u"large.ps"_s, QByteArray(100000, 'x'))};
    const FileSizeLimit limit(50000);
    const WrittenJobFile written = writeJobFile(m_path, large);
    EXPECT_EQ(written.fault, JobFileFault::Output);
    EXPECT_EQ(written.error, u"The file %1 cannot be written: File too large."_s.arg(m_path));
    EXPECT_EQ(readFile(m_path), "precious");
}

TEST_F(JobFileAt, ADeviceWithoutRoomIsSaidAndStaysADevice)
{
    const WrittenJobFile written = writeJobFile(u"/dev/full"_s, job());
    EXPECT_EQ(written.fault, JobFileFault::Output);
    EXPECT_TRUE(written.error.startsWith(u"The file /dev/full cannot be written: "_s))
        << written.error.toStdString();
    EXPECT_FALSE(QFileInfo(u"/dev/full"_s).isFile());
}

struct Damage
{
    const char *name;
    QByteArray bytes;
};

void PrintTo(const Damage &row, std::ostream *out)
{
    *out << row.name;
}

class DamagedJobFile : public JobFileAt, public testing::WithParamInterface<Damage>
{};

TEST_P(DamagedJobFile, IsRefused)
{
    const QString path = write(u"damaged.job"_s, "Velkaro-Print-Job: 1\n" + GetParam().bytes);
    EXPECT_EQ(readJobFile(path).error, u"The saved job %1 is damaged."_s.arg(path));
}

INSTANTIATE_TEST_SUITE_P(
    Table, DamagedJobFile,
    testing::Values(Damage{"NothingMore", ""}, Damage{"NoDocument", "Title: a\n\n"},
                    Damage{"CutShort", "Document: 10 a\n\nshort"},
                    Damage{"TooLong", "Document: 2 a\n\nlong"},
                    Damage{"NoEndOfHeader", "Document: 2 a\n"},
                    Damage{"NegativeLength", "Document: -2 a\n\n"},
                    Damage{"UnknownField", "Command: rm\nDocument: 1 a\n\nx"},
                    Damage{"OptionThatMustNotTravel", "Option: a b=c\nDocument: 1 a\n\nx"}),
    [](const auto &row) { return std::string(row.param.name); });

TEST_F(JobFileAt, KeepsDocumentsInTheirFolderWhateverTheyAreCalled)
{
    const QString path = write(
        u"evil.job"_s, "Velkaro-Print-Job: 1\nDocument: 1 ../../../etc/x\nDocument: 1 ..\n\nab");
    const ReadJobFile read = readJobFile(path);
    ASSERT_EQ(read.error, QString());
    for (const QString &document : read.job.documents)
        EXPECT_TRUE(QDir::cleanPath(document).startsWith(read.folder->path() + u'/'));
    EXPECT_EQ(readFile(read.job.documents[1]), "b");
}

TEST_F(JobFileAt, AnyOtherFileIsNoJob)
{
    const QString path = write(u"plain.pdf"_s, "%PDF-1.4\n");
    EXPECT_FALSE(isJobFile(path));
    EXPECT_EQ(readJobFile(path).error, u"%1 is no saved job."_s.arg(path));
}

} // namespace
