#include "dialog/printing/SavedJob.h"

#include "dialog/job/JobFileWriter.h"
#include "tests/support/CaseName.h"
#include "tests/support/Documents.h"
#include "tests/support/Files.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A job in a file, made for the queue "photo".
class SavedJob : public testing::Test
{
protected:
    Document save(const QList<JobOption> &options)
    {
        const QString document = m_folder.filePath(u"letter.ps"_s);
        writeFile(document, "%!PS\n");
        JobRequest job;
        job.queue = u"photo"_s;
        job.title = u"Letter"_s;
        job.options = options;
        job.documents = openedDocuments({document});
        CallGuard guard;
        JobProgress progress;
        EXPECT_TRUE(writeJobFile(m_path, job, {}, guard, progress));
        return openedDocuments({m_path}).front();
    }

    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(u"letter.velkaro-job"_s);
    PrintWishes m_wishes;
};

TEST_F(SavedJob, IsSentToItsQueueOrTheOneThatIsWished)
{
    const Document file = save({{u"copies"_s, u"2"_s}});
    EXPECT_EQ(savedJob(m_wishes, file, false)->queue, u"photo"_s);
    m_wishes.queue = u"other"_s;
    m_wishes.server = u"there"_s;
    const Result<JobRequest> job = savedJob(m_wishes, file, false);
    ASSERT_TRUE(job) << job.sentence().toStdString();
    EXPECT_EQ(job->queue, u"other"_s);
    EXPECT_EQ(job->server, u"there"_s);
    EXPECT_EQ(job->options, (QList<JobOption>{{u"copies"_s, u"2"_s}}));
}

TEST_F(SavedJob, TakesNoOtherSettings)
{
    m_wishes.paper = u"A4"_s;
    const Result<JobRequest> job = savedJob(m_wishes, save({}), false);
    EXPECT_EQ(job.faultKind(), FaultKind::Request);
    EXPECT_EQ(job.sentence(), m_path + u" is a saved job: it is sent as it was saved, without -o, "
                                       "--paper and --output."_s);
}

struct Option
{
    const char *behaviour;
    QString name;
    bool yes;
    QString sentence; ///< %1: the file's path; null: the job is sent
};

class SavedOption : public SavedJob, public testing::WithParamInterface<Option>
{};

TEST_P(SavedOption, IsSentOrNamed)
{
    const Result<JobRequest> job =
        savedJob(m_wishes, save({{GetParam().name, u"x"_s}}), GetParam().yes);
    if (GetParam().sentence.isNull()) {
        EXPECT_EQ(job.sentence(), QString());
        return;
    }
    EXPECT_EQ(job.faultKind(), FaultKind::Vetoed);
    EXPECT_EQ(job.sentence(), GetParam().sentence.arg(m_path));
}

const QString kNever = u"%1 is not sent: it sets raw, which no saved job may."_s;
const QString kForeign = u"%1 is not sent: it sets job-sheets-col, which Velkaro Print does not "
                         "write; --yes sends it all the same."_s;

INSTANTIATE_TEST_SUITE_P(Table, SavedOption,
                         testing::Values(Option{"Own", u"copies"_s, false, {}},
                                         Option{"OfAPPD", u"VKMediaType"_s, false, {}},
                                         Option{"Foreign", u"job-sheets-col"_s, false, kForeign},
                                         Option{"ForeignWithYes", u"job-sheets-col"_s, true, {}},
                                         Option{"Never", u"raw"_s, false, kNever},
                                         Option{"NeverWithYes", u"raw"_s, true, kNever}),
                         CaseName());

TEST(NotesOnSaving, NameWhatKeepsTheJobFromBeingSent)
{
    EXPECT_EQ(notesOnSaving(u"/a.job"_s, {{u"copies"_s, u"2"_s}, {u"PageSize"_s, u"A4"_s}}),
              QStringList());
    EXPECT_EQ(notesOnSaving(u"/a.job"_s, {{u"raw"_s, u"true"_s},
                                          {u"copies"_s, u"2"_s},
                                          {u"document-format"_s, u"text/plain"_s}}),
              QStringList(u"The job in /a.job can be looked at but not sent: it sets raw, "
                          "document-format, which no saved job may. Remove that from the settings "
                          "saved for the queue."_s));
}

} // namespace
