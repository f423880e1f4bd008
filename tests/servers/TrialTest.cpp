#include "dialog/cups/JobSubmission.h"
#include "tests/scriptedserver/GoodAnswers.h"
#include "tests/scriptedserver/IppBytes.h"
#include "tests/scriptedserver/ScriptedServer.h"
#include "tests/support/CaseName.h"
#include "tests/support/Documents.h"
#include "tests/support/Files.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// Servers that say beforehand that they will print the job otherwise than it was shown.

struct Trial
{
    const char *behaviour;
    Script script;
    QString hold; ///< that the user wants; null: none
    bool isOnTrial;
    QStringList notes; ///< %1 is the server's name
    QStringList afterwards;
};

void PrintTo(const Trial &row, std::ostream *out)
{
    *out << row.behaviour;
}

class AJobOfWhichADifferenceIsForeseen : public testing::TestWithParam<Trial>
{};

TEST_P(AJobOfWhichADifferenceIsForeseen, IsHeldAndCompared)
{
    const ScriptedServer server(GetParam().script);
    const QTemporaryDir folder;
    JobRequest job;
    job.server = server.address();
    job.queue = u"photo"_s;
    job.options = {{u"VKMediaType"_s, u"Glossy"_s}};
    if (!GetParam().hold.isNull())
        job.options += {u"job-hold-until"_s, GetParam().hold};
    writeFile(folder.filePath(u"document.pdf"_s), "d");
    job.documents = openedDocuments({folder.filePath(u"document.pdf"_s)});
    CallGuard guard;
    const auto receipt = submitJob(job, guard);
    ASSERT_TRUE(receipt) << receipt.sentence().toStdString();
    EXPECT_EQ(receipt->isOnTrial, GetParam().isOnTrial);
    EXPECT_EQ(receipt->notes,
              QStringList(GetParam().notes).replaceInStrings(u"%1"_s, server.address()));
    EXPECT_EQ(server.requests(),
              creatingJob({u"Send-Document"_s, u"Get-Job-Attributes"_s}) + GetParam().afterwards);
    const auto created = readIppAnswer(server.bodies(u"Create-Job"_s).value(0)).ipp;
    EXPECT_STREQ(ippGetString(ippFindAttribute(created.get(), "job-hold-until", IPP_TAG_KEYWORD), 0,
                              nullptr),
                 GetParam().hold.isNull() ? "indefinite" : qPrintable(GetParam().hold));
}

const Rule kForeseen{"Validate-Job", answerIpp(IppBytes(IPP_STATUS_OK_IGNORED_OR_SUBSTITUTED)
                                                   .group(IPP_TAG_UNSUPPORTED_GROUP)
                                                   .attribute(IPP_TAG_NAME, "VKMediaType", "Glossy")
                                                   .ended())};
const Rule kForeseenByDefaults{
    "Get-Printer-Attributes",
    answerIpp(IppBytes()
                  .group(IPP_TAG_PRINTER)
                  .attribute(IPP_TAG_NAME, "com.example.Tone-default", "7")
                  .ended())};
const Rule kChanged{"Get-Job-Attributes",
                    answerIpp(IppBytes()
                                  .group(IPP_TAG_JOB)
                                  .integer(IPP_TAG_ENUM, "job-state", IPP_JSTATE_HELD)
                                  .attribute(IPP_TAG_NAME, "VKMediaType", "Plain")
                                  .attribute(IPP_TAG_KEYWORD, "job-hold-until", "indefinite")
                                  .attribute(IPP_TAG_NAME, "com.example.Tone", "7")
                                  .integer(IPP_TAG_INTEGER, "number-up", 4)
                                  .ended())};
const QStringList kDifferences{
    u"The server changed the setting VKMediaType from Glossy to Plain."_s,
    u"The server set number-up to 4, where 1 was shown."_s,
    u"The server set com.example.Tone to 7, which was not shown."_s};
const QString kNotKnown = u"Whether the server keeps all settings of job 7 is not known: its "
                          "account of the job cannot be read."_s;

INSTANTIATE_TEST_SUITE_P(
    Table, AJobOfWhichADifferenceIsForeseen,
    testing::Values(
        Trial{"IsReleasedWhereThereIsNone", {kForeseen}, {}, false, {}, {u"Release-Job"_s}},
        Trial{"IsReleasedWhereADefaultIsNotAdded",
              {kForeseenByDefaults},
              {},
              false,
              {},
              {u"Release-Job"_s}},
        Trial{"WaitsForAYes", {kForeseen, kChanged}, {}, true, kDifferences, {}},
        Trial{"WaitsForAYesWhereItsAccountCannotBeRead",
              {kForeseen, {"Get-Job-Attributes", answerIpp("<html>")}},
              {},
              true,
              {kNotKnown},
              {}},
        Trial{"WaitsWhereItCannotBeReleased",
              {kForeseen,
               {"Release-Job", answerIpp(IppBytes(IPP_STATUS_ERROR_NOT_POSSIBLE).ended())}},
              {},
              true,
              {u"The server holds job 7, which could not be released: The print server %1 "
               "refused: IPP 0x0404."_s},
              {u"Release-Job"_s}},
        Trial{"IsNeverReleasedAgainstAHoldOfTheUsers", {kForeseen}, u"night"_s, false, {}, {}}),
    CaseName());

TEST(AServerThatIsAskedBeforeAJob, IsLeftWhereItDoesNotAnswer)
{
    const ScriptedServer server({{"Get-Printer-Attributes", {readBody(), closeConnection()}}});
    const QTemporaryDir folder;
    JobRequest job;
    job.server = server.address();
    job.queue = u"photo"_s;
    writeFile(folder.filePath(u"document.pdf"_s), "d");
    job.documents = openedDocuments({folder.filePath(u"document.pdf"_s)});
    CallGuard guard;
    const auto receipt = submitJob(job, guard);
    EXPECT_EQ(receipt.faultKind(), FaultKind::Unreachable);
    EXPECT_EQ(server.requests(), QStringList{u"Get-Printer-Attributes"_s});
}

} // namespace
