#include "dialog/job/PipeDocuments.h"
#include "tests/support/Documents.h"
#include "tests/support/FileSizeLimit.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <sys/ioctl.h>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

class Pipe : public testing::Test
{
protected:
    void SetUp() override
    {
        std::array<int, 2> ends{};
        ASSERT_EQ(::pipe(ends.data()), 0);
        m_reading = FileDescriptor(ends[0]);
        m_writing = FileDescriptor(ends[1]);
        m_path = u"/dev/fd/%1"_s.arg(m_reading.get());
    }

    void write(const QByteArray &bytes)
    {
        ASSERT_EQ(::write(m_writing.get(), bytes.constData(), static_cast<size_t>(bytes.size())),
                  bytes.size());
    }
    void end() { m_writing = FileDescriptor(); }

    Result<Documents> read(qint64 longest = kLongestPipe)
    {
        return readPipes(openedDocuments({m_path}), m_guard, longest);
    }

    FileDescriptor m_reading;
    FileDescriptor m_writing;
    QString m_path;
    CallGuard m_guard;
};

TEST_F(Pipe, IsADocumentWhenItHasEnded)
{
    write("%!PS\n");
    std::thread writer([this] {
        write(QByteArray(100'000, 'x')); // more than a pipe holds
        end();
    });
    const auto got = read();
    writer.join();
    ASSERT_TRUE(got.isGood()) << got.sentence().toStdString();
    ASSERT_EQ(got->size(), 1);
    EXPECT_FALSE(hasPipes(*got));
    EXPECT_EQ(bytesOf((*got)[0]), "%!PS\n" + QByteArray(100'000, 'x'));
    EXPECT_EQ(bytesOf((*got)[0]).size(), 100'005) << "read once more";
}

TEST_F(Pipe, WithoutAByteIsEmpty)
{
    end();
    const auto got = read();
    EXPECT_EQ(got.faultKind(), FaultKind::Document);
    EXPECT_EQ(got.sentence(), u"The document %1 is empty."_s.arg(m_path));
}

TEST_F(Pipe, ThatDoesNotEndIsReadUpToALimit)
{
    std::signal(SIGPIPE, SIG_IGN);
    std::thread writer([this] {
        const QByteArray piece(10'000, 'x');
        while (::write(m_writing.get(), piece.constData(), 10'000) == 10'000) {
        }
    });
    const auto got = read(2'000'000);
    m_reading = FileDescriptor();
    writer.join();
    EXPECT_EQ(got.faultKind(), FaultKind::Document);
    EXPECT_EQ(got.sentence(), u"The document %1 is longer than 2 MB, the most that is read "
                              "from a pipe."_s.arg(m_path));
}

TEST_F(Pipe, ThatIsSilentIsWaitedForUntilTheUserCancels)
{
    write("%!PS\n");
    CallGuard hurried(std::chrono::milliseconds(0)); // timeout is for servers
    std::thread user([&] {
        int waiting = 1;
        while (waiting > 0) // until what is there has been read
            if (ioctl(m_reading.get(), FIONREAD, &waiting) != 0)
                break;
        hurried.cancel();
    });
    const auto got = readPipes(openedDocuments({m_path}), hurried);
    user.join();
    EXPECT_EQ(got.faultKind(), FaultKind::Cancelled);
    EXPECT_EQ(got.sentence(), u"Printing was cancelled."_s);
}

/// Another temporary folder, for as long as the object lives.
class TemporaryFolder
{
public:
    explicit TemporaryFolder(const QString &path) : m_before(qgetenv("TMPDIR"))
    {
        qputenv("TMPDIR", path.toUtf8());
    }
    ~TemporaryFolder() { m_before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", m_before); }

private:
    QByteArray m_before;
};

TEST_F(Pipe, LeavesNoNameInTheTemporaryFolder)
{
    const QTemporaryDir folder;
    const TemporaryFolder there(folder.path());
    write("%!PS\n");
    end();
    const auto got = read();
    ASSERT_TRUE(got.isGood());
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
              QStringList());
    EXPECT_EQ(bytesOf((*got)[0]), "%!PS\n");
}

TEST_F(Pipe, WithoutATemporaryFolderIsSaid)
{
    const TemporaryFolder nowhere(u"/nonexistent"_s);
    write("%!PS\n");
    end();
    EXPECT_EQ(read().sentence(),
              u"The document %1 cannot be kept in the temporary folder /nonexistent: No such file "
              "or directory."_s.arg(m_path));
}

TEST_F(Pipe, ThatFillsTheTemporaryFolderIsSaid)
{
    write("%!PS, and more than fits\n");
    end();
    const FileSizeLimit limit(10);
    EXPECT_EQ(read().sentence(),
              u"There is no room in the temporary folder %1 for the document %2."_s.arg(
                  QDir::tempPath(), m_path));
}

} // namespace
