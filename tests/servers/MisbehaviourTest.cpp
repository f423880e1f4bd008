#include "dialog/cups/Destinations.h"
#include "dialog/cups/QueuePPD.h"
#include "tests/scriptedserver/GoodAnswers.h"
#include "tests/scriptedserver/IppBytes.h"
#include "tests/scriptedserver/ScriptedServer.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// Servers that answer what is asked before a job, and how the answer ends.

constexpr auto kShortTimeout = 600ms; // for servers that have to be given up

struct Misbehaviour
{
    const char *behaviour;
    Result<> (*ask)(const QString &server, CallGuard &guard);
    Script script;
    std::optional<FaultKind> fault;
    const char *sentence; ///< %1 is the server's name
    std::chrono::milliseconds timeout = kServerTimeout;
};

void PrintTo(const Misbehaviour &row, std::ostream *out)
{
    *out << row.behaviour;
}

template <typename Value> Result<> withoutValue(const Result<Value> &result)
{
    return result ? Result<>() : result.fault();
}

Result<> printers(const QString &server, CallGuard &guard)
{
    return withoutValue(listDestinations(server, guard));
}

Result<> defaultQueue(const QString &server, CallGuard &guard)
{
    return withoutValue(serverDefault(server, guard));
}

Result<> ppd(const QString &server, CallGuard &guard)
{
    return withoutValue(fetchQueuePPD(server, u"photo"_s, guard));
}

class AMisbehavingServer : public testing::TestWithParam<Misbehaviour>
{};

TEST_P(AMisbehavingServer, IsToldOfInOneSentenceAndLeft)
{
    const ScriptedServer server(GetParam().script);
    {
        CallGuard guard(GetParam().timeout);
        const auto answer = GetParam().ask(server.address(), guard);
        EXPECT_EQ(answer.faultKind(), GetParam().fault);
        const QString expected = QString::fromUtf8(GetParam().sentence);
        EXPECT_EQ(answer.sentence(), QString(expected).replace(u"%1"_s, server.address()));
    }
}

const auto kList = "CUPS-Get-Printers";

Script whenListing(const Steps &steps)
{
    return {{kList, steps}};
}

Script whenFetching(const Steps &steps)
{
    return {{"GET", steps}};
}

const QByteArray kOk = "HTTP/1.1 200 OK\r\nContent-Type: application/ipp\r\n";

/// Begins an answer that is longer than what comes of it.
QByteArray beginOf(const QByteArray &body, qsizetype part)
{
    return kOk + "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" +
           body.left(part);
}

QByteArray chunk(const QByteArray &part)
{
    return QByteArray::number(part.size(), 16) + "\r\n" + part + "\r\n";
}

const QByteArray kChunked = kOk + "Transfer-Encoding: chunked\r\n\r\n";

IppBytes printerNamed(const QByteArray &name)
{
    return IppBytes().group(IPP_TAG_PRINTER).attribute(IPP_TAG_NAME, "printer-name", name);
}

QByteArray statusWithText(int status, const QByteArray &text)
{
    return IppBytes(status).attribute(IPP_TAG_TEXT, "status-message", text).ended();
}

constexpr auto kSilent = "The print server %1 does not answer.";
constexpr auto kTooSlow = "The print server %1 takes too long to answer.";
constexpr auto kClosed = "The print server %1 closed the connection without an answer.";
constexpr auto kCut = "The print server %1 broke off in the middle of its answer.";
constexpr auto kNonsenseAnswer = "The answer of the print server %1 cannot be understood.";
constexpr auto kTooLarge = "The answer of the print server %1 is too large.";
constexpr auto kCutPPD =
    "The print server %1 sent only part of the PPD of the queue photo. Try again.";

const QByteArray kPrinter = printerNamed("photo").ended();

INSTANTIATE_TEST_SUITE_P(
    Silence, AMisbehavingServer,
    testing::Values(
        Misbehaviour{"AtConnecting",
                     printers,
                     {{"connect", {hold()}}},
                     FaultKind::Silent,
                     kSilent,
                     kShortTimeout},
        Misbehaviour{"AfterTheRequest", printers, whenListing({readBody(), hold()}),
                     FaultKind::Silent, kSilent, kShortTimeout},
        Misbehaviour{"InItsHeaders", printers,
                     whenListing({readBody(), write("HTTP/1.1 200 OK\r\nContent-"), hold()}),
                     FaultKind::Silent, kSilent, kShortTimeout},
        Misbehaviour{"InItsAnswer", printers,
                     whenListing({readBody(), write(beginOf(kPrinter, 40)), hold()}),
                     FaultKind::Silent, kSilent, kShortTimeout},
        Misbehaviour{"InThePPD", ppd, whenFetching({write(beginOf(goodPPD(), 4096)), hold()}),
                     FaultKind::Silent, kSilent, kShortTimeout},
        Misbehaviour{"OfTheDefault",
                     defaultQueue,
                     {{"CUPS-Get-Default", {readBody(), hold()}}},
                     FaultKind::Silent,
                     kSilent,
                     kShortTimeout}),
    CaseName());

INSTANTIATE_TEST_SUITE_P(
    WithoutEnd, AMisbehavingServer,
    testing::Values(
        Misbehaviour{"HeadersByteByByte", printers,
                     whenListing({readBody(), drip(kOk + QByteArray(10000, 'X'), 10ms)}),
                     FaultKind::Silent, kSilent, kShortTimeout},
        Misbehaviour{"AnswerByteByByte", printers,
                     whenListing({readBody(), write(beginOf(QByteArray(100000, '\2'), 0)),
                                  drip(QByteArray(100000, '\2'), 10ms)}),
                     FaultKind::Silent, kTooSlow, kShortTimeout},
        Misbehaviour{"PPDByteByByte", ppd,
                     whenFetching({write(beginOf(goodPPD(), 0)), drip(goodPPD(), 10ms)}),
                     FaultKind::Silent, kTooSlow, kShortTimeout},
        Misbehaviour{"Headers", printers,
                     whenListing({readBody(), write("HTTP/1.1 200 OK\r\n"),
                                  flood(QByteArray("X-More: more\r\n").repeated(1000), 1LL << 40)}),
                     FaultKind::Silent, kSilent, kShortTimeout},
        Misbehaviour{
            "HeadersOfAPPD", ppd,
            whenFetching({write("HTTP/1.1 200 OK\r\n"),
                          flood(QByteArray("X-More: more\r\n").repeated(1000), 1LL << 40)}),
            FaultKind::Silent, kSilent, kShortTimeout},
        Misbehaviour{"OneLongHeader", printers,
                     whenListing({readBody(), write("HTTP/1.1 200 OK\r\nX-More: "),
                                  flood(QByteArray(65536, 'm'), 1LL << 40)}),
                     FaultKind::Refused, kNonsenseAnswer},
        Misbehaviour{"GoAheads", printers,
                     whenListing({readBody(),
                                  flood(QByteArray("HTTP/1.1 100 Continue\r\n\r\n").repeated(1000),
                                        1LL << 40)}),
                     FaultKind::Silent, kSilent, kShortTimeout},
        Misbehaviour{"Printers", printers,
                     whenListing({readBody(), write(kChunked + chunk(printerNamed("photo").cut())),
                                  flood(chunk(QByteArray("\4\x42\0\14printer-name\0\5photo", 22)
                                                  .repeated(1000)),
                                        1LL << 40)}),
                     FaultKind::Refused, kTooLarge},
        Misbehaviour{
            "PPD", ppd,
            whenFetching({write(kChunked), flood(chunk(QByteArray(65536, '*')), 1LL << 40)}),
            FaultKind::Refused, "The PPD of the queue photo is too large."},
        Misbehaviour{"APageBesideARefusal", printers,
                     whenListing({readBody(),
                                  write("HTTP/1.1 500 Internal Server Error\r\n"
                                        "Transfer-Encoding: chunked\r\n\r\n"),
                                  flood(chunk(QByteArray(65536, '*')), 1LL << 40)}),
                     FaultKind::Refused, "The print server %1 has a fault (HTTP 500)."}),
    CaseName());

INSTANTIATE_TEST_SUITE_P(
    BrokenOff, AMisbehavingServer,
    testing::Values(
        Misbehaviour{"AtConnecting",
                     printers,
                     {{"connect", {closeConnection()}}},
                     FaultKind::Unreachable,
                     kClosed},
        Misbehaviour{"AfterTheRequest", printers, whenListing({readBody(), closeConnection()}),
                     FaultKind::Unreachable, kClosed},
        Misbehaviour{"WithAReset", printers, whenListing({readBody(), resetConnection()}),
                     FaultKind::Unreachable, kClosed},
        Misbehaviour{
            "InItsHeaders", printers,
            whenListing({readBody(), write("HTTP/1.1 200 OK\r\nContent-"), closeConnection()}),
            FaultKind::Unreachable, kCut},
        Misbehaviour{"InAnAnswerOfStatedLength", printers,
                     whenListing({readBody(), write(beginOf(kPrinter, 40)), closeConnection()}),
                     FaultKind::Unreachable, kCut},
        Misbehaviour{"BeforeTheTagThatEnds", printers,
                     whenListing({readBody(), write(beginOf(kPrinter, kPrinter.size() - 1)),
                                  closeConnection()}),
                     FaultKind::Unreachable, kCut},
        Misbehaviour{"InAChunk", printers,
                     whenListing({readBody(), write(kChunked + chunk(kPrinter).left(40)),
                                  closeConnection()}),
                     FaultKind::Unreachable, kCut},
        Misbehaviour{"BetweenChunks", printers,
                     whenListing({readBody(), write(kChunked + chunk(kPrinter.left(40))),
                                  closeConnection()}),
                     FaultKind::Unreachable, kCut},
        Misbehaviour{"InAPPDOfStatedLength", ppd,
                     whenFetching({write(beginOf(goodPPD(), goodPPD().indexOf("*OpenUI", 9000))),
                                   closeConnection()}),
                     FaultKind::Unreachable, kCutPPD},
        Misbehaviour{"InAPPDBetweenChunks", ppd,
                     whenFetching({write(kChunked +
                                         chunk(goodPPD().left(goodPPD().indexOf("*OpenUI", 9000)))),
                                   closeConnection()}),
                     FaultKind::Unreachable, kCutPPD},
        Misbehaviour{
            "InAPPDChunk", ppd,
            whenFetching({write(kChunked + chunk(goodPPD()).left(9000)), closeConnection()}),
            FaultKind::Unreachable, kCutPPD},
        Misbehaviour{
            "InAPPDWithoutItsLength", ppd,
            whenFetching({write(kOk + "\r\n" + goodPPD().left(goodPPD().indexOf("*OpenUI", 9000))),
                          closeConnection()}),
            FaultKind::Unreachable, kCutPPD}),
    CaseName());

Misbehaviour httpStatus(const char *behaviour, const QByteArray &status,
                        std::optional<FaultKind> fault, const char *sentence,
                        Result<> (*ask)(const QString &, CallGuard &) = ppd)
{
    const Steps steps = answerWith(
        httpAnswer(status, "text/html\r\nWWW-Authenticate: Basic realm=\"x\"\r\nLocation: /else",
                   "<h1>Sorry</h1>"));
    return {behaviour, ask, {{"GET", steps}, {"POST", steps}}, fault, sentence};
}

INSTANTIATE_TEST_SUITE_P(
    StatusOfHttp, AMisbehavingServer,
    testing::Values(
        httpStatus("MovedPPD", "301 Moved Permanently", FaultKind::Refused,
                   "The print server %1 answered with a redirection, which is not followed "
                   "(HTTP 301)."),
        httpStatus("MovedList", "302 Found", FaultKind::Refused,
                   "The print server %1 answered with a redirection, which is not followed "
                   "(HTTP 302).",
                   printers),
        httpStatus("PasswordForAPPD", "401 Unauthorized", FaultKind::NeedsPassword,
                   "The print server %1 lets nobody print to photo without a password."),
        httpStatus("PasswordForTheList", "401 Unauthorized", FaultKind::NeedsPassword,
                   "The print server %1 answers nobody without a password.", printers),
        httpStatus("ForbiddenPPD", "403 Forbidden", FaultKind::Refused,
                   "The print server %1 does not allow this machine to print to photo."),
        httpStatus("ForbiddenList", "403 Forbidden", FaultKind::Refused,
                   "The print server %1 does not allow this machine to ask.", printers),
        httpStatus("NoSuchPPDAndNoIpp", "404 Not Found", FaultKind::NotFound,
                   "The print server %1 has no queue photo."),
        httpStatus("NoIpp", "404 Not Found", FaultKind::NotFound,
                   "The print server %1 does not know what it was asked for.", printers),
        httpStatus("NoIppForTheDefault", "405 Method Not Allowed", FaultKind::Refused,
                   "The print server %1 refused (HTTP 405).", defaultQueue),
        httpStatus("EncryptionThatIsNotThere", "426 Upgrade Required", FaultKind::Refused,
                   "The print server %1 demands an encrypted connection, which cannot be made."),
        httpStatus("FaultAtAPPD", "500 Internal Server Error", FaultKind::Refused,
                   "The print server %1 has a fault (HTTP 500)."),
        httpStatus("FaultAtTheList", "503 Service Unavailable", FaultKind::Refused,
                   "The print server %1 has a fault (HTTP 503).", printers),
        httpStatus("NoneThatThereIs", "999 Whatever", FaultKind::Refused,
                   "The print server %1 refused (HTTP 999).", printers)),
    CaseName());

Misbehaviour ipp(const char *behaviour, const QByteArray &message, const char *sentence,
                 std::optional<FaultKind> fault = FaultKind::Refused)
{
    return {behaviour, printers, whenListing(answerIpp(message)), fault, sentence};
}

INSTANTIATE_TEST_SUITE_P(
    StatusOfIpp, AMisbehavingServer,
    testing::Values(
        ipp("FaultWithAText", statusWithText(0x0500, "Disk full, call Ann"),
            "The print server %1 reports a fault: Disk full, call Ann."),
        ipp("FaultWithoutAText", IppBytes(0x0500).ended(),
            "The print server %1 reports a fault: IPP 0x0500."),
        ipp("Unknown", statusWithText(0x7777, "What now?"),
            "The print server %1 refused: What now?"),
        ipp("UnknownWithoutAText", IppBytes(0x7777).ended(),
            "The print server %1 refused: IPP 0x7777."),
        ipp("Largest", IppBytes(0xFFFF).ended(), "The print server %1 refused: IPP 0xffff."),
        ipp("Redirection", IppBytes(0x0300).ended(), "The print server %1 refused: IPP 0x0300."),
        ipp("TextWithControlsAndTurns",
            statusWithText(0x0400, "one\n\x1b[2J\xe2\x80\xaetwo <b>three</b>"),
            "The print server %1 refused: one [2Jtwo <b>three</b>."),
        ipp("TextThatIsNoUtf8", statusWithText(0x0400, "one \xff two"),
            "The print server %1 refused: one \xef\xbf\xbd two."),
        ipp("TextOfTheWrongSyntax",
            IppBytes(0x0400).integer(IPP_TAG_INTEGER, "status-message", 5).ended(),
            "The print server %1 refused: IPP 0x0400."),
        ipp("ForbiddenWithAText", statusWithText(0x0401, "Not on Sundays."),
            "The print server %1 refused: Not on Sundays."),
        ipp("Password", IppBytes(0x0402).ended(),
            "The print server %1 answers nobody without a password.", FaultKind::NeedsPassword)),
    CaseName());

INSTANTIATE_TEST_SUITE_P(
    Nonsense, AMisbehavingServer,
    testing::Values(
        ipp("NothingAtAll", {}, kNonsenseAnswer),
        ipp("Html", "<html><h1>Hello</h1></html>", kNonsenseAnswer),
        ipp("OneByte", "\2", kNonsenseAnswer),
        ipp("OnlyAHeader", IppBytes().cut().left(8), kNonsenseAnswer),
        ipp("NestedTooDeep", IppBytes().group(IPP_TAG_PRINTER).nested("media-col", 9000).ended(),
            kNonsenseAnswer),
        ipp("VersionThatIsNot", IppBytes::beginningWith("\x9\x9").ended(), kNonsenseAnswer),
        ipp("ALengthBeyondTheEnd", IppBytes().raw(QByteArray("\x41\0\4name\x7f\xff", 9)).ended(),
            kNonsenseAnswer),
        ipp("AnIntegerOfTwoBytes", IppBytes().attribute(IPP_TAG_INTEGER, "x", "ab").ended(),
            kNonsenseAnswer),
        ipp("AValueWithoutAnAttribute",
            IppBytes().group(IPP_TAG_PRINTER).attribute(IPP_TAG_NAME, {}, "x").ended(),
            kNonsenseAnswer),
        ipp("AValueBeforeAnyGroup",
            IppBytes().cut().left(8) + ippNumber(IPP_TAG_NAME, 1) + QByteArray("\0\1x\0\1y\3", 7),
            kNonsenseAnswer),
        Misbehaviour{
            "NotHttp", printers,
            whenListing({readBody(), write("SSH-2.0-OpenSSH_9.2\r\n\r\n"), closeConnection()}),
            FaultKind::Refused, kNonsenseAnswer}),
    CaseName());

// --- And what is no misbehaviour, however odd it looks

struct Oddity
{
    const char *behaviour;
    Steps steps;
    QStringList queues;
};

void PrintTo(const Oddity &row, std::ostream *out)
{
    *out << row.behaviour;
}

class AnOddServer : public testing::TestWithParam<Oddity>
{};

TEST_P(AnOddServer, IsUnderstood)
{
    const ScriptedServer server(whenListing(GetParam().steps));
    CallGuard guard;
    const auto list = listDestinations(server.address(), guard);
    EXPECT_EQ(list.sentence(), QString());
    QStringList queues;
    for (const Destination &destination : *list)
        queues += destination.name.queue;
    EXPECT_EQ(queues, GetParam().queues);
}

IppBytes printersNamed(const QList<QByteArray> &names)
{
    IppBytes message;
    for (const QByteArray &name : names)
        message.group(IPP_TAG_PRINTER).attribute(IPP_TAG_NAME, "printer-name", name);
    return message;
}

INSTANTIATE_TEST_SUITE_P(
    Table, AnOddServer,
    testing::Values(
        Oddity{"WithoutQueues", answerIpp(IppBytes(IPP_STATUS_ERROR_NOT_FOUND).ended()), {}},
        Oddity{"WithoutAttributes", answerIpp(IppBytes().cut().left(8) + '\3'), {}},
        Oddity{"ThatCallsIppSomethingElse",
               answerWith(httpAnswer("200 OK", "text/html", kPrinter)),
               {u"photo"_s}},
        Oddity{"ThatCountsRequestsOtherwise",
               answerIpp(IppBytes::beginningWith(QByteArray("\2\0\0\0\7\7\7\7", 8))
                             .group(IPP_TAG_PRINTER)
                             .attribute(IPP_TAG_NAME, "printer-name", "photo")
                             .ended()),
               {u"photo"_s}},
        Oddity{"ThatEndsWithTheConnection",
               {readBody(), write(kOk + "\r\n" + kPrinter), closeConnection()},
               {u"photo"_s}},
        Oddity{"ThatForgetsTheLastChunk",
               {readBody(), write(kChunked + chunk(kPrinter)), closeConnection()},
               {u"photo"_s}},
        Oddity{"ThatGoesOnAfterTheEnd", answerIpp(kPrinter + "more"), {u"photo"_s}},
        Oddity{"ThatSaysGoOnFirst",
               {readBody(), write("HTTP/1.1 100 Continue\r\n\r\n" + ippAnswer(kPrinter))},
               {u"photo"_s}},
        Oddity{"WithOtherOrderAndTwins",
               answerIpp(printersNamed({"zoo", "Art", "photo", "art", "photo"}).ended()),
               {u"Art"_s, u"photo"_s, u"zoo"_s}},
        Oddity{"WithNamesThatNobodyCanSay",
               answerIpp(printersNamed({"", "a/b", "a b", "a#b", "a\nb", "\xe2\x80\xae", "good"})
                             .ended()),
               {u"good"_s}},
        Oddity{"WithANameThatIsANumber",
               answerIpp(IppBytes()
                             .group(IPP_TAG_PRINTER)
                             .integer(IPP_TAG_INTEGER, "printer-name", 5)
                             .group(IPP_TAG_PRINTER)
                             .attribute(IPP_TAG_NAME, "printer-name", "photo")
                             .attribute(IPP_TAG_TEXT, "printer-state", "stopped")
                             .integer(IPP_TAG_INTEGER, "printer-info", 1)
                             .integer(IPP_TAG_ENUM, "printer-location", 1)
                             .attribute(IPP_TAG_NAME, "printer-is-accepting-jobs", "no")
                             .ended()),
               {u"photo"_s}},
        Oddity{"WithTheLongestValue",
               answerIpp(printerNamed("photo")
                             .attribute(IPP_TAG_TEXT, "printer-info", QByteArray(32767, 'i'))
                             .ended()),
               {u"photo"_s}},
        Oddity{"WithCollectionsInCollections",
               answerIpp(printerNamed("photo").nested("media-col-default", 16).ended()),
               {u"photo"_s}}),
    CaseName());

TEST(ALargeServer, ListsTwentyThousandQueues)
{
    IppBytes message;
    for (int index = 0; index < 20000; ++index)
        message.group(IPP_TAG_PRINTER)
            .attribute(IPP_TAG_NAME, "printer-name", "queue" + QByteArray::number(100000 + index))
            .attribute(IPP_TAG_TEXT, "printer-info", QByteArray(80, 'i'))
            .attribute(IPP_TAG_TEXT, "printer-location", QByteArray(80, 'l'))
            .integer(IPP_TAG_ENUM, "printer-state", IPP_PSTATE_STOPPED)
            .boolean("printer-is-accepting-jobs", false);
    const ScriptedServer server(whenListing(answerIpp(message.ended())));
    CallGuard guard;
    const auto list = listDestinations(server.address(), guard);
    EXPECT_EQ(list.sentence(), QString());
    ASSERT_EQ(list->size(), 20000);
    EXPECT_EQ((*list)[19999].name.queue, u"queue119999"_s);
    EXPECT_EQ((*list)[19999].description, QString(80, u'i'));
    EXPECT_EQ((*list)[19999].location, QString(80, u'l'));
    EXPECT_TRUE((*list)[19999].isStopped);
    EXPECT_FALSE((*list)[19999].isAccepting);
}

} // namespace
