#include "tests/endtoend/ProgramRun.h"
#include "tests/scriptedserver/IppBytes.h"
#include "tests/scriptedserver/ScriptedServer.h"
#include "tests/support/CaseName.h"
#include "tests/support/Files.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// The whole program against servers that misbehave: what its user reads, and its exit status.

struct ProgramCase
{
    const char *behaviour;
    Script script;
    int status;
    const char *output;
    const char *errors; ///< %1 is the server's name
    QStringList requests;
};

void PrintTo(const ProgramCase &row, std::ostream *out)
{
    *out << row.behaviour;
}

class Program : public testing::TestWithParam<ProgramCase>
{};

TEST_P(Program, EndsWithAStatusAndOneSentence)
{
    const ScriptedServer server(GetParam().script);
    const QTemporaryDir folder;
    const QString document = folder.filePath(u"document.pdf"_s);
    writeFile(document, "%PDF-1.4\n");
    const ProgramRun run =
        runProgram({u"--no-dialog"_s, u"-h"_s, server.address(), u"-d"_s, u"photo"_s, document});
    EXPECT_EQ(run.status, GetParam().status);
    EXPECT_EQ(run.output, QString::fromUtf8(GetParam().output));
    EXPECT_EQ(run.errors, QString::fromUtf8(GetParam().errors).replace(u"%1"_s, server.address()));
    EXPECT_EQ(server.requests(), GetParam().requests);
}

const auto kGet = u"GET /printers/photo.ppd"_s;

INSTANTIATE_TEST_SUITE_P(
    Table, Program,
    testing::Values(
        ProgramCase{"PrintsOnAGoodServer",
                    {},
                    0,
                    "request id is photo-7 (1 file(s))\n",
                    "",
                    printingToPhoto({u"Send-Document"_s, u"Get-Job-Attributes"_s})},
        ProgramCase{"IsRedirected",
                    {{"GET", answerWith(httpAnswer("301 Moved Permanently",
                                                   "text/plain\r\nLocation: /other", "away"))}},
                    6,
                    "",
                    "velkaro-print: The print server %1 answered with a redirection, which is not "
                    "followed (HTTP 301).\n",
                    {kGet}},
        ProgramCase{
            "GetsPartOfThePPD",
            {{"GET",
              {write("HTTP/1.1 200 OK\r\nContent-Length: 42030\r\n\r\n*PPD-Adobe: \"4.3\"\n"),
               closeConnection()}}},
            6,
            "",
            "velkaro-print: The print server %1 sent only part of the PPD of the queue "
            "photo. Try again.\n",
            {kGet}},
        ProgramCase{
            "IsRefusedWithATextOfAllSorts",
            {{"Create-Job", answerIpp(IppBytes(0x0500)
                                          .attribute(IPP_TAG_TEXT, "status-message",
                                                     "Disk\nfull \x1b[31m\xe2\x80\xae<b>now</b>")
                                          .ended())}},
            6,
            "",
            "velkaro-print: Nothing was printed on photo: The print server %1 reports a fault: "
            "Disk full [31m<b>now</b>.\n",
            printingToPhoto()},
        ProgramCase{
            "GetsAJobWithANegativeNumber",
            {{"Create-Job",
              answerIpp(
                  IppBytes().group(IPP_TAG_JOB).integer(IPP_TAG_INTEGER, "job-id", -5).ended())}},
            6,
            "",
            "velkaro-print: Nothing was printed on photo: The answer of the print server %1 cannot "
            "be "
            "understood.\n",
            printingToPhoto()},
        ProgramCase{"GetsNestedCollectionsForTheAcceptedJob",
                    {{"Get-Job-Attributes",
                      answerIpp(IppBytes().group(IPP_TAG_JOB).nested("x", 9000).ended())}},
                    0,
                    "request id is photo-7 (1 file(s))\n",
                    "velkaro-print: Whether the server keeps all settings of job 7 is not known: "
                    "its account of the job cannot be read.\n",
                    printingToPhoto({u"Send-Document"_s, u"Get-Job-Attributes"_s})}),
    CaseName());

} // namespace
