#include "dialog/cups/JobSubmission.h"
#include "tests/scriptedserver/GoodAnswers.h"
#include "tests/scriptedserver/IppBytes.h"
#include "tests/scriptedserver/JobAnswers.h"
#include "tests/scriptedserver/ScriptedServer.h"
#include "tests/support/Documents.h"
#include "tests/support/Files.h"

#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto kTimeout = 600ms;
constexpr qint64 kLarge = 64LL * 1024 * 1024; // more than all buffers on the way take

class LostAnswer : public testing::Test
{
protected:
    JobRequest job(const ScriptedServer &server, qint64 size = 100)
    {
        const QString path = m_folder.filePath(u"document.ps"_s);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.resize(size));
        JobRequest request;
        request.server = server.address();
        request.queue = u"photo"_s;
        request.documents = openedDocuments({path});
        return request;
    }

    QTemporaryDir m_folder;
    CallGuard m_guard{kTimeout};
};

const Steps kNotFound = answerIpp(IppBytes(IPP_STATUS_ERROR_NOT_FOUND).ended());
const Steps kNotPossible = answerIpp(IppBytes(IPP_STATUS_ERROR_NOT_POSSIBLE).ended());

/// What the server does with a job, and what the user is told of it. %1 stands for the server.
struct Loss
{
    const char *name;
    Steps onDocument;
    Steps onLook;   ///< empty: it tells of a job that is pending
    Steps onCancel; ///< empty: it cancels
    std::optional<FaultKind> fault;
    const char *sentence;
    QStringList requests; ///< after Create-Job and Send-Document
};

void PrintTo(const Loss &row, std::ostream *out)
{
    *out << row.name;
}

class JobWithALostAnswer : public LostAnswer, public testing::WithParamInterface<Loss>
{};

TEST_P(JobWithALostAnswer, IsLookedForAndNeverSentAgain)
{
    const Loss &row = GetParam();
    Script script{{"Send-Document", row.onDocument}};
    if (!row.onLook.isEmpty())
        script += {"Get-Job-Attributes", row.onLook};
    if (!row.onCancel.isEmpty())
        script += {"Cancel-Job", row.onCancel};
    const ScriptedServer server(script);
    const auto progress = std::make_shared<JobProgress>();
    const auto receipt = submitJob(job(server), m_guard, progress);
    EXPECT_EQ(receipt.faultKind(), row.fault);
    EXPECT_EQ(receipt.sentence(),
              QString::fromUtf8(row.sentence).replace(u"%1"_s, server.address()));
    EXPECT_EQ(progress->id(), kGoodJob);
    EXPECT_EQ(progress->isAccepted(), row.fault == std::nullopt);
    EXPECT_EQ(server.requests(), creatingJob({u"Send-Document"_s}) + row.requests);
}

const QString kLook = u"Get-Job-Attributes"_s;
const QString kCancel = u"Cancel-Job"_s;
const Steps kTakeAndClose{readBody(), closeConnection()};
const Steps kTakeAndHold{readBody(), hold()};

INSTANTIATE_TEST_SUITE_P(
    Table, JobWithALostAnswer,
    testing::Values(
        Loss{"Pending", kTakeAndClose, {}, {}, std::nullopt, "", {kLook, kLook}},
        Loss{"Silence", kTakeAndHold, {}, {}, std::nullopt, "", {kLook, kLook}},
        Loss{"FaultOfTheServer",
             answerWith(httpAnswer("503 Service Unavailable", "text/plain", "no")),
             {},
             {},
             std::nullopt,
             "",
             {kLook, kLook}},
        Loss{"Nonsense", answerIpp("<html>"), {}, {}, std::nullopt, "", {kLook, kLook}},
        Loss{"Printing",
             kTakeAndClose,
             jobInState(IPP_JSTATE_PROCESSING, "job-printing"),
             {},
             std::nullopt,
             "",
             {kLook, kLook}},
        Loss{"Printed",
             kTakeAndClose,
             jobInState(IPP_JSTATE_COMPLETED, "job-completed-successfully"),
             {},
             std::nullopt,
             "",
             {kLook, kLook}},
        Loss{"HeldAsWanted",
             kTakeAndClose,
             jobInState(IPP_JSTATE_HELD, "job-hold-until-specified"),
             {},
             std::nullopt,
             "",
             {kLook, kLook}},
        Loss{"NotWholeWhenSilent",
             kTakeAndHold,
             jobInState(IPP_JSTATE_HELD, "job-incoming"),
             {},
             FaultKind::Silent,
             "Job 7 on photo was cancelled: The print server %1 does not answer.",
             {kLook, kCancel}},
        Loss{"NotWholeAndNotToBeCancelled",
             kTakeAndHold,
             jobInState(IPP_JSTATE_HELD, "job-incoming"),
             kNotPossible,
             FaultKind::Unsettled,
             "The print server %1 does not answer. Job 7 on photo could not be cancelled at %1 and "
             "may "
             "be printed.",
             {kLook, kCancel, kLook}},
        Loss{"CancelledThere",
             kTakeAndClose,
             jobInState(IPP_JSTATE_CANCELED, "job-canceled-by-operator"),
             {},
             FaultKind::Refused,
             "The print server %1 cancelled job 7 on photo.",
             {kLook}},
        Loss{"AbortedThere",
             kTakeAndClose,
             jobInState(IPP_JSTATE_ABORTED, "aborted-by-system"),
             {},
             FaultKind::Refused,
             "The print server %1 aborted job 7 on photo.",
             {kLook}},
        Loss{"Forgotten",
             kTakeAndClose,
             kNotFound,
             {},
             FaultKind::Unsettled,
             "The print server %1 did not say whether it took the job: it may have been printed as "
             "job 7 on photo.",
             {kLook}},
        Loss{"NobodyToAsk",
             kTakeAndClose,
             {hold()},
             {},
             FaultKind::Unsettled,
             "The print server %1 did not say whether it took the job: it may have been printed as "
             "job 7 on photo.",
             {kLook}},
        // The answer is there: nothing is to be looked for.
        Loss{"RefusedByAnswer",
             answerIpp(IppBytes(IPP_STATUS_ERROR_DOCUMENT_FORMAT_NOT_SUPPORTED).ended()),
             {},
             {},
             FaultKind::Refused,
             "Job 7 on photo was cancelled: The print server %1 refused: IPP 0x040a.",
             {kCancel}}),
    [](const auto &row) { return std::string(row.param.name); });

TEST_F(LostAnswer, ThatWasARefusalStaysOne)
{
    const ScriptedServer server(
        {{"Send-Document", answerIpp(IppBytes(IPP_STATUS_ERROR_NOT_POSSIBLE).ended())},
         {"Cancel-Job", kNotPossible}});
    EXPECT_EQ(submitJob(job(server), m_guard).faultKind(), FaultKind::Unsettled);
}

TEST_F(LostAnswer, ToOneOfSeveralDocumentsLeavesAJobThatIsCancelled)
{
    const ScriptedServer server({{"Send-Document", kTakeAndClose}});
    JobRequest request = job(server);
    request.documents.push_back(request.documents.front());
    const auto receipt = submitJob(request, m_guard);
    EXPECT_EQ(receipt.faultKind(), FaultKind::Unreachable);
    EXPECT_EQ(server.requests(), creatingJob({u"Send-Document"_s, u"Cancel-Job"_s}));
}

// --- A creation whose answer is lost
// --------------------------------------------------------------

/// A job that the server lists.
struct Listed
{
    int id;
    const char *title;
    int documents;
    int age; ///< in seconds
};

QByteArray listOf(const QList<Listed> &jobs)
{
    constexpr int now = 1'000'000;
    IppBytes list;
    for (const Listed &job : jobs)
        list.group(IPP_TAG_JOB)
            .integer(IPP_TAG_INTEGER, "job-id", job.id)
            .attribute(IPP_TAG_NAME, "job-name", job.title)
            .integer(IPP_TAG_INTEGER, "number-of-documents", job.documents)
            .integer(IPP_TAG_INTEGER, "time-at-creation", now - job.age)
            .integer(IPP_TAG_INTEGER, "job-printer-up-time", now);
    return list.ended();
}

struct LostJob
{
    const char *name;
    QList<Listed> jobs;
    int cancelled; ///< 0: none
};

void PrintTo(const LostJob &row, std::ostream *out)
{
    *out << row.name;
}

class JobWithALostNumber : public LostAnswer, public testing::WithParamInterface<LostJob>
{};

TEST_P(JobWithALostNumber, IsCancelledWhereItIsSurelyTheOne)
{
    const ScriptedServer server(
        {{"Create-Job", kTakeAndClose}, {"Get-Jobs", answerIpp(listOf(GetParam().jobs))}});
    JobRequest request = job(server);
    request.title = u"Mine"_s;
    EXPECT_EQ(submitJob(request, m_guard).sentence(),
              u"Nothing was printed on photo: The print server %1 closed the connection without an "
              "answer."_s.arg(server.address()));
    QStringList cancelled;
    for (const QByteArray &body : server.bodies(kCancel))
        cancelled += QString::number(ippGetInteger(
            ippFindAttribute(readIppAnswer(body).ipp.get(), "job-id", IPP_TAG_INTEGER), 0));
    EXPECT_EQ(cancelled, GetParam().cancelled == 0
                             ? QStringList()
                             : QStringList(QString::number(GetParam().cancelled)));
}

INSTANTIATE_TEST_SUITE_P(
    Table, JobWithALostNumber,
    testing::Values(
        LostJob{"TheOnlyOne", {{9, "Mine", 0, 0}}, 9},
        LostJob{"BesideOthers", {{8, "Another", 0, 0}, {9, "Mine", 0, 1}, {10, "Mine", 1, 0}}, 9},
        LostJob{"NoneIsThere", {}, 0}, LostJob{"AnotherTitle", {{9, "mine", 0, 0}}, 0},
        LostJob{"WithADocument", {{9, "Mine", 1, 0}}, 0},
        LostJob{"OfBefore", {{9, "Mine", 0, 5}}, 0},
        LostJob{"TwoOfThem", {{9, "Mine", 0, 0}, {10, "Mine", 0, 0}}, 0}),
    [](const auto &row) { return std::string(row.param.name); });

// --- Cancelling, at any time ---------------------------------------------------------------------

/// When the user cancels, and what becomes of the job.
struct Cancelling
{
    const char *name;
    const char *request; ///< that is being served then
    qint64 read;         ///< of its body
    qint64 size;         ///< of the document
    std::optional<FaultKind> fault;
    QStringList requests;
};

void PrintTo(const Cancelling &row, std::ostream *out)
{
    *out << row.name;
}

class JobThatIsCancelled : public LostAnswer, public testing::WithParamInterface<Cancelling>
{};

TEST_P(JobThatIsCancelled, IsCancelledAtTheServerUntilItIsAccepted)
{
    const Cancelling &row = GetParam();
    const Step cancel = [this](ServedConnection &) {
        m_guard.cancel();
        return true;
    };
    const ScriptedServer server({{row.request, {readBody(row.read), cancel, hold()}}});
    const auto receipt = submitJob(job(server, row.size), m_guard);
    EXPECT_EQ(receipt.faultKind(), row.fault) << receipt.sentence().toStdString();
    EXPECT_EQ(server.requests(), row.requests);
}

INSTANTIATE_TEST_SUITE_P(
    Table, JobThatIsCancelled,
    testing::Values(Cancelling{"WhileItIsSent", "Send-Document", 1000, kLarge, FaultKind::Cancelled,
                               creatingJob({u"Send-Document"_s, u"Cancel-Job"_s})},
                    Cancelling{"WhileTheLastAnswerIsWaitedFor", "Send-Document", kWhole, 100,
                               FaultKind::Cancelled,
                               creatingJob({u"Send-Document"_s, u"Cancel-Job"_s})},
                    Cancelling{"WhenItIsAccepted", "Get-Job-Attributes", kWhole, 100, std::nullopt,
                               creatingJob({u"Send-Document"_s, u"Get-Job-Attributes"_s})}),
    [](const auto &row) { return std::string(row.param.name); });

TEST_F(LostAnswer, OfAJobThatWasCancelledBeforeItsCreationIsNone)
{
    const ScriptedServer server;
    m_guard.cancel();
    EXPECT_EQ(submitJob(job(server), m_guard).faultKind(), FaultKind::Cancelled);
    EXPECT_EQ(server.requests(), QStringList());
}

// --- Documents that change on the way ------------------------------------------------------------

class JobWhoseDocumentBecomes : public LostAnswer, public testing::WithParamInterface<qint64>
{};

TEST_P(JobWhoseDocumentBecomes, AnotherLengthIsCancelled)
{
    const Step change = [this](ServedConnection &) {
        return QFile::resize(m_folder.filePath(u"document.ps"_s), GetParam());
    };
    const ScriptedServer server({{"Send-Document", {readBody(1000), change, readBody()}}});
    const JobRequest request = job(server, kLarge);
    const auto receipt = submitJob(request, m_guard);
    EXPECT_EQ(receipt.faultKind(), FaultKind::Document);
    EXPECT_EQ(receipt.sentence(),
              u"The document %1 has become shorter or longer since it was opened."_s.arg(
                  request.documents[0].path()));
    EXPECT_EQ(server.requests(), creatingJob({u"Send-Document"_s, u"Cancel-Job"_s}));
}

INSTANTIATE_TEST_SUITE_P(Sizes, JobWhoseDocumentBecomes,
                         testing::Values(0, kLarge - 1, kLarge + 1));

TEST_F(LostAnswer, IsKnownAsSoonAsTheServerHasSaidSo)
{
    // What waits for the work gives it up in the middle of the read-back.
    const ScriptedServer server({{"Get-Job-Attributes", {hold()}}});
    const JobRequest request = job(server);
    const auto progress = std::make_shared<JobProgress>();
    EXPECT_EQ(givenUpReceipt(request, *progress).faultKind(), FaultKind::Silent);
    EXPECT_TRUE(submitJob(request, m_guard, progress).isGood());
    const auto givenUp = givenUpReceipt(request, *progress);
    EXPECT_TRUE(givenUp.isGood());
    EXPECT_EQ(givenUp->id, kGoodJob);
    JobProgress sending;
    sending.setId(kGoodJob);
    EXPECT_EQ(givenUpReceipt(request, sending).sentence(),
              u"The print server %1 did not say whether it took the job: it may have been printed "
              "as job 7 on photo."_s.arg(server.address()));
}

} // namespace
