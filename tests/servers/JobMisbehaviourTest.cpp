#include "dialog/cups/JobSubmission.h"
#include "tests/scriptedserver/GoodAnswers.h"
#include "tests/scriptedserver/IppBytes.h"
#include "tests/scriptedserver/ScriptedServer.h"
#include "tests/support/CaseName.h"
#include "tests/support/Documents.h"
#include "tests/support/Files.h"

#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

#include <thread>
#include <vector>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// Servers that are sent a job: what becomes of it, and what they are told afterwards.

constexpr qint64 kDocument = 1000000;                 // bytes
constexpr qint64 kLargeDocument = 64LL * 1024 * 1024; // more than all buffers on the way take
constexpr auto kShort = 600ms;                        // for servers that have to be given up

struct JobMisbehaviour
{
    const char *behaviour;
    Script script;
    std::optional<FaultKind> fault;
    const char *sentence; ///< why; %1 is the server's name; null for an accepted job
    QStringList notes;
    QStringList requests;
    std::chrono::milliseconds timeout = kServerTimeout;
    qint64 size = kDocument;
};

/// What the sentence says of the job, before it says why.
QByteArray fateIn(const JobMisbehaviour &row)
{
    if (!row.fault)
        return {};
    return row.requests.contains(u"Cancel-Job"_s) ? "Job 7 on photo was cancelled: "
                                                  : "Nothing was printed on photo: ";
}

void PrintTo(const JobMisbehaviour &row, std::ostream *out)
{
    *out << row.behaviour;
}

class AServerThatTakesJobs : public testing::TestWithParam<JobMisbehaviour>
{};

TEST_P(AServerThatTakesJobs, IsTakenAtItsWord)
{
    const ScriptedServer server(GetParam().script);
    const QTemporaryDir folder;
    JobRequest job;
    job.server = server.address();
    job.queue = u"photo"_s;
    job.options = {{u"VKMediaType"_s, u"Glossy"_s}};
    QFile document(folder.filePath(u"document.pdf"_s));
    ASSERT_TRUE(document.open(QIODevice::WriteOnly) && document.resize(GetParam().size));
    job.documents = openedDocuments({folder.filePath(u"document.pdf"_s)});
    CallGuard guard(GetParam().timeout);
    const auto receipt = submitJob(job, guard);
    EXPECT_EQ(receipt.faultKind(), GetParam().fault);
    EXPECT_EQ(receipt.sentence(), QString::fromUtf8(fateIn(GetParam()) + GetParam().sentence)
                                      .replace(u"%1"_s, server.address()));
    EXPECT_EQ(receipt ? receipt->notes : QStringList(), GetParam().notes);
    QStringList requests = server.requests();
    requests.removeAll(u"OPTIONS *"_s); // how TLS is asked for
    EXPECT_EQ(requests, GetParam().requests);
}

const QStringList kCreated = creatingJob();
const QStringList kLookedFor = creatingJob({u"Get-Jobs"_s}); // it may be there, empty
const QStringList kCancelled = creatingJob({u"Send-Document"_s, u"Cancel-Job"_s});
const QStringList kAccepted = creatingJob({u"Send-Document"_s, u"Get-Job-Attributes"_s});

const QByteArray kHeadersOfIpp = "HTTP/1.1 200 OK\r\nContent-Type: application/ipp\r\n";
const QByteArray kJobOfThePast = IppBytes()
                                     .group(IPP_TAG_JOB)
                                     .integer(IPP_TAG_INTEGER, "job-id", kGoodJob)
                                     .integer(IPP_TAG_INTEGER, "time-at-creation", 3600)
                                     .ended();
constexpr auto kNonsense = "The answer of the print server %1 cannot be understood.";

QByteArray jobNumbered(ipp_tag_t tag, const QByteArray &number)
{
    return IppBytes().group(IPP_TAG_JOB).attribute(tag, "job-id", number).ended();
}

QByteArray refusal(int status, const QByteArray &text)
{
    return IppBytes(status).attribute(IPP_TAG_TEXT, "status-message", text).ended();
}

JobMisbehaviour notCreated(const char *behaviour, const QByteArray &answer, const char *sentence,
                           std::optional<FaultKind> fault = FaultKind::Refused,
                           const QStringList &requests = kCreated)
{
    return {behaviour, {{"Create-Job", answerIpp(answer)}}, fault, sentence, {}, requests};
}

INSTANTIATE_TEST_SUITE_P(
    AskedForAJob, AServerThatTakesJobs,
    testing::Values(
        notCreated("GivesItANegativeNumber", jobNumbered(IPP_TAG_INTEGER, ippNumber(-5, 4)),
                   kNonsense),
        notCreated("GivesItTheNumberZero", jobNumbered(IPP_TAG_INTEGER, ippNumber(0, 4)),
                   kNonsense),
        notCreated("GivesItTheSmallestNumber",
                   jobNumbered(IPP_TAG_INTEGER, QByteArray("\x80\0\0\0", 4)), kNonsense),
        notCreated("GivesItATextForANumber", jobNumbered(IPP_TAG_TEXT, "7"), kNonsense),
        notCreated("GivesItNoNumber", IppBytes().ended(), kNonsense),
        notCreated("AnswersInHtml", "<html>", kNonsense, FaultKind::Refused, kLookedFor),
        notCreated("AnswersWithNestedCollections",
                   IppBytes().group(IPP_TAG_JOB).nested("x", 9000).ended(), kNonsense,
                   FaultKind::Refused, kLookedFor),
        notCreated("HasAFault", refusal(0x0500, "No space left on device."),
                   "The print server %1 reports a fault: No space left on device."),
        notCreated("TakesNoJobs", refusal(0x0506, "The printer takes a nap."),
                   "The print server %1 refused: The printer takes a nap."),
        notCreated("AnswersBeyondTheEnumeration", IppBytes(0x7777).ended(),
                   "The print server %1 refused: IPP 0x7777."),
        notCreated("HasNoSuchQueue", IppBytes(0x0406).ended(),
                   "The print server %1 has no queue photo.", FaultKind::NotFound),
        notCreated("WantsAPassword", IppBytes(0x0402).ended(),
                   "The print server %1 lets nobody print to photo without a password.",
                   FaultKind::NeedsPassword),
        notCreated(
            "SaysAMegabyte",
            [] {
                IppBytes message(0x0400);
                message.attribute(IPP_TAG_TEXT, "status-message", QByteArray(32767, 'm'));
                for (int part = 0; part < 32; ++part)
                    message.attribute(IPP_TAG_TEXT, {}, QByteArray(32767, 'm'));
                return message.ended();
            }(),
            [] {
                static const QByteArray expected =
                    "The print server %1 refused: " + QByteArray(300, 'm') + "\xe2\x80\xa6";
                return expected.constData();
            }()),
        JobMisbehaviour{"LeavesWithoutAWord",
                        {{"Create-Job", {readBody(), closeConnection()}}},
                        FaultKind::Unreachable,
                        "The print server %1 closed the connection without an answer.",
                        {},
                        kLookedFor},
        JobMisbehaviour{"IsSilent",
                        {{"Create-Job", {readBody(), hold()}}},
                        FaultKind::Silent,
                        "The print server %1 does not answer.",
                        {},
                        kLookedFor,
                        kShort},
        JobMisbehaviour{
            "AnswersByteByByte",
            {{"Create-Job", {readBody(), drip(kHeadersOfIpp + QByteArray(10000, 'X'), 10ms)}}},
            FaultKind::Silent,
            "The print server %1 does not answer.",
            {},
            kLookedFor,
            kShort},
        JobMisbehaviour{"ClosesAtOnce",
                        {{"connect", {closeConnection()}}},
                        FaultKind::Unreachable,
                        "The print server %1 closed the connection without an answer.",
                        {},
                        {}},
        JobMisbehaviour{"IsSilentBeforeTheJob",
                        {{"Get-Printer-Attributes", {readBody(), hold()}}},
                        FaultKind::Silent,
                        "The print server %1 does not answer.",
                        {},
                        {u"Get-Printer-Attributes"_s},
                        kShort},
        JobMisbehaviour{"LeavesWhenTheJobIsValidated",
                        {{"Validate-Job", {readBody(), closeConnection()}}},
                        FaultKind::Unreachable,
                        "The print server %1 closed the connection without an answer.",
                        {},
                        {u"Get-Printer-Attributes"_s, u"Validate-Job"_s}},
        JobMisbehaviour{"HasAClockThatIsAnHourOff",
                        {{"Create-Job",
                          {readBody(),
                           write("HTTP/1.1 200 OK\r\nDate: Thu, 01 Jan 1970 01:00:00 GMT"
                                 "\r\nContent-Type: application/ipp\r\n"),
                           write("Content-Length: " + QByteArray::number(kJobOfThePast.size()) +
                                 "\r\n\r\n" + kJobOfThePast)}}},
                        std::nullopt,
                        nullptr,
                        {},
                        kAccepted}),
    CaseName());

/// A server that has nothing to say but a status of HTTP, when the job is created and when a
/// document is sent.
struct StatusOfAJob
{
    const char *behaviour;
    QByteArray status;
    FaultKind fault;
    const char *sentence;
};

const StatusOfAJob kStatuses[] = {
    {"Redirects", "302 Found", FaultKind::Refused,
     "The print server %1 answered with a redirection, which is not followed (HTTP 302)."},
    {"WantsAPassword", "401 Unauthorized", FaultKind::NeedsPassword,
     "The print server %1 lets nobody print to photo without a password."},
    {"Forbids", "403 Forbidden", FaultKind::Refused,
     "The print server %1 does not allow this machine to print to photo."},
    {"WantsEncryption", "426 Upgrade Required", FaultKind::Refused,
     "The print server %1 demands an encrypted connection, which cannot be made."},
    {"IsBusy", "503 Service Unavailable", FaultKind::Refused,
     "The print server %1 has a fault (HTTP 503)."},
};

std::vector<JobMisbehaviour> statusesAt(const char *request, const QStringList &requests)
{
    std::vector<JobMisbehaviour> rows;
    for (const StatusOfAJob &status : kStatuses) {
        const QByteArray answer = httpAnswer(
            status.status, "text/html\r\nWWW-Authenticate: Basic realm=\"x\"\r\nLocation: /else",
            "<h1>Sorry</h1>");
        // Of a document that is sent whole before it is refused nobody knows what became.
        const bool isAtOnce = request == QByteArray("Send-Document");
        rows.push_back({status.behaviour,
                        {{request, isAtOnce ? Steps{write(answer), hold()} : answerWith(answer)}},
                        status.fault,
                        status.sentence,
                        {},
                        requests,
                        kServerTimeout,
                        isAtOnce ? kLargeDocument : kDocument});
    }
    return rows;
}

INSTANTIATE_TEST_SUITE_P(StatusForAJob, AServerThatTakesJobs,
                         testing::ValuesIn(statusesAt("Create-Job", kCreated)), CaseName());
INSTANTIATE_TEST_SUITE_P(StatusForADocument, AServerThatTakesJobs,
                         testing::ValuesIn(statusesAt("Send-Document", kCancelled)), CaseName());

JobMisbehaviour notTaken(const char *behaviour, const Steps &steps, const char *sentence,
                         std::optional<FaultKind> fault = FaultKind::Refused)
{
    return {behaviour, {{"Send-Document", steps}}, fault, sentence, {}, kCancelled};
}

/// Leaves what is sent where it is, for longer than anybody waits.
Step takeNoMore()
{
    return [](ServedConnection &) {
        std::this_thread::sleep_for(3 * kShort);
        return false;
    };
}

/// Of a document that is on its way for longer than a moment.
JobMisbehaviour large(JobMisbehaviour row)
{
    row.size = kLargeDocument;
    row.timeout = kShort;
    return row;
}

INSTANTIATE_TEST_SUITE_P(
    SentADocument, AServerThatTakesJobs,
    testing::Values(
        notTaken("RefusesItAtItsEnd", answerIpp(refusal(0x040A, "Unknown format.")),
                 "The print server %1 refused: Unknown format."),
        notTaken("RefusesItAtOnce", {write(ippAnswer(refusal(0x040A, "Unknown format."))), hold()},
                 "The print server %1 refused: Unknown format."),
        notTaken("LosesTheJob", answerIpp(refusal(0x0406, "Job #7 does not exist.")),
                 "The print server %1 refused: Job #7 does not exist."),
        notTaken("ForbidsIt", {write(httpAnswer("403 Forbidden", "text/plain", "no")), hold()},
                 "The print server %1 does not allow this machine to print to photo."),
        notTaken("FindsItTooLarge",
                 {write(httpAnswer("413 Request Entity Too Large", "text/plain", "no")), hold()},
                 "The print server %1 refused (HTTP 413)."),
        large(notTaken("ClosesBeforeIt", {closeConnection()},
                       "The print server %1 closed the connection without an answer.",
                       FaultKind::Unreachable)),
        large(notTaken("ClosesInTheMiddleOfIt", {readBody(1000), closeConnection()},
                       "The print server %1 closed the connection without an answer.",
                       FaultKind::Unreachable)),
        large(notTaken("ResetsInTheMiddleOfIt", {readBody(1000), resetConnection()},
                       "The print server %1 closed the connection without an answer.",
                       FaultKind::Unreachable)),
        large(notTaken("FallsSilentInTheMiddleOfIt", {readBody(1000), takeNoMore()},
                       "The print server %1 does not answer.", FaultKind::Silent)),
        notTaken("RefusesItWithControlCharacters",
                 answerIpp(refusal(0x040A, "No\n\x1b[2Jroom \xe2\x80\xae<b>here</b>")),
                 "The print server %1 refused: No [2Jroom <b>here</b>."),
        JobMisbehaviour{"IsBusyWithItForLonger",
                        {{"Send-Document",
                          {readBody(), hold(2 * kShort), write(ippAnswer(IppBytes().ended()))}}},
                        std::nullopt,
                        nullptr,
                        {},
                        kAccepted,
                        kShort}),
    CaseName());

JobMisbehaviour taken(const char *behaviour, const Steps &steps,
                      std::chrono::milliseconds timeout = kServerTimeout)
{
    return {behaviour,
            {{"Get-Job-Attributes", steps}},
            std::nullopt,
            nullptr,
            {u"Whether the server keeps all settings of job 7 is not known: its account of the job "
             "cannot be read."_s},
            kAccepted,
            timeout};
}

INSTANTIATE_TEST_SUITE_P(
    AskedForAnAcceptedJob, AServerThatTakesJobs,
    testing::Values(
        taken("NestsCollections",
              answerIpp(IppBytes().group(IPP_TAG_JOB).nested("job-state", 9000).ended())),
        taken("AnswersNonsense", answerIpp("<html>")),
        taken("HasAFault", answerWith(httpAnswer("500 Internal Server Error", "text/plain", "no"))),
        taken("LeavesWithoutAWord", {readBody(), closeConnection()}),
        taken("LeavesInItsAnswer",
              {readBody(), write(ippAnswer(IppBytes().ended()).chopped(5)), closeConnection()}),
        taken("IsSilent", {readBody(), hold()}, kShort),
        taken("SendsHeadersWithoutEnd",
              {readBody(), write("HTTP/1.1 200 OK\r\n"),
               flood(QByteArray("X-More: more\r\n").repeated(1000), 1LL << 40)},
              kShort),
        JobMisbehaviour{"SaysThatItDoesNotTell",
                        {{"Get-Job-Attributes", answerIpp(IppBytes(0x0403).ended())}},
                        std::nullopt,
                        nullptr,
                        {},
                        kAccepted},
        JobMisbehaviour{
            "KnowsItByOtherSyntaxes",
            {{"Get-Job-Attributes", answerIpp(IppBytes()
                                                  .group(IPP_TAG_JOB)
                                                  .attribute(IPP_TAG_TEXT, "job-state", "held")
                                                  .attribute(IPP_TAG_NAME, "VKMediaType", "Glossy")
                                                  .ended())}},
            std::nullopt,
            nullptr,
            {},
            kAccepted}),
    CaseName());

} // namespace
