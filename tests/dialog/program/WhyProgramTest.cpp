// Why a setting is not to be had, what a run would do and what it has changed: by the program as it
// is installed.
#include "tests/built/BuiltFiles.h"
#include "tests/dialog/program/RunAlone.h"
#include "tests/support/CaseName.h"
#include "tests/support/Files.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QStringList onSample(const QStringList &arguments)
{
    return QStringList{u"--ppd"_s, samplePPD(u"velkaro-px-t900"_s)} + arguments;
}

struct WhyCase
{
    std::string behaviour;
    QStringList arguments;
    QString language;
    ProgramEnd end;
};

class WhyProgram : public testing::TestWithParam<WhyCase>
{};

TEST_P(WhyProgram, Answers)
{
    const ProgramEnd end = runAlone(onSample(GetParam().arguments), {}, GetParam().language);
    EXPECT_EQ(end.output, GetParam().end.output);
    EXPECT_EQ(end.error, GetParam().end.error);
    EXPECT_EQ(end.status, GetParam().end.status);
}

const WhyCase kWhyCases[] = {
    {"WithTheRemedyAndTheOptionsToType",
     {u"--why"_s, u"VKResolution=Photo"_s},
     u"en"_s,
     {0,
      u"Photo is not there for Plain Paper. It is there for Inkjet Paper, Velkaro Photo Paper, "
      u"Glossy and 4 more.\n-o VKMediaType=Inkjet -o VKResolution=Photo\n"_s,
      {}}},
    {"WithAllThatHasToChange",
     {u"-o"_s, u"Duplex=DuplexTumble"_s, u"--why"_s, u"VKResolution=Photo"_s},
     u"en"_s,
     {0,
      u"Photo is not there for Short-Edge Binding and Plain Paper (Two-Sided). It is there with "
      u"Two-Sided Printing: Off and Inkjet Paper.\n"
      u"-o Duplex=None -o VKMediaType=Inkjet -o VKResolution=Photo\n"_s,
      {}}},
    {"ByTheNameThatEveryPrinterHas",
     {u"-o"_s, u"Duplex=DuplexTumble"_s, u"--why"_s, u"sides=two-sided-long-edge"_s},
     u"en"_s,
     {0, u"Long-Edge Binding can be chosen.\n"_s, {}}},
    {"ForAChoiceThatIsThere",
     {u"--why"_s, u"VKResolution=High"_s},
     u"en"_s,
     {0, u"High can be chosen.\n"_s, {}}},
    {"AsOneObject",
     {u"--why"_s, u"vkresolution=photo"_s, u"--json"_s},
     u"en"_s,
     {0,
      uR"({"available":false,"changes":[{"choice":"Inkjet","from":"Plain","keyword":"VKMediaType"}],)"
      uR"("choice":"Photo","keyword":"VKResolution","possible":true,"sentence":"Photo is not there )"
      uR"(for Plain Paper. It is there for Inkjet Paper, Velkaro Photo Paper, Glossy and 4 more."})"
      u"\n"_s,
      {}}},
    {"InTheUsersLanguage",
     {u"--why"_s, u"VKMediaType=PrintableDisc"_s},
     u"ja"_s,
     {0,
      u"A4 では プリンタブルディスク は選べません。ディスク 120 mm と ディスク 120 "
      u"mm(ワイドレーベル) "
      u"なら選べます。\n-o PageSize=120x120mm -o VKMediaType=PrintableDisc\n"_s,
      {}}},
    {"ForAKeywordThatThePrinterLacks",
     {u"--why"_s, u"Nothing=Photo"_s},
     u"en"_s,
     {2, {}, u"velkaro-print: The printer has no setting Nothing.\n"_s}},
    {"ForAChoiceThatThePrinterLacks",
     {u"--why"_s, u"VKBiDir=Photo"_s},
     u"en"_s,
     {2, {}, u"velkaro-print: Photo is no value for VKBiDir.\n"_s}},
    {"ForAnotherSettingThatThePrinterLacks",
     {u"-o"_s, u"VKBiDir=Maybe"_s, u"--why"_s, u"VKBiDir=ON"_s},
     u"en"_s,
     {2, {}, u"velkaro-print: Maybe is no value for VKBiDir. It can be: OFF, ON.\n"_s}},
};

INSTANTIATE_TEST_SUITE_P(, WhyProgram, testing::ValuesIn(kWhyCases), CaseName());

class RunWithoutDialog : public testing::Test
{
protected:
    RunWithoutDialog() { writeFile(m_document, "A letter.\n"); }

    ProgramEnd run(const QStringList &arguments) const
    {
        return runAlone(
            onSample(QStringList{u"--no-dialog"_s, u"--output"_s, m_job, m_document} + arguments));
    }

    const QTemporaryDir m_folder;
    const QString m_document = m_folder.filePath(u"letter.txt"_s);
    const QString m_job = m_folder.filePath(u"job"_s);
};

TEST_F(RunWithoutDialog, WritesNothingWhenItIsDry)
{
    const ProgramEnd end = run({u"--dry-run"_s});
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.output, u"The job would be written to %1.\n"_s.arg(m_job));
    EXPECT_FALSE(QFile::exists(m_job));
}

TEST_F(RunWithoutDialog, EndsDryAsItWouldOtherwise)
{
    const QList<QStringList> all = {
        {u"-o"_s, u"VKMediaType=Glossy"_s},
        {u"-o"_s, u"VKMediaType=Glossy"_s, u"-o"_s, u"VKResolution=PlainFast"_s},
        {u"-o"_s, u"Nothing=Glossy"_s},
        {m_folder.filePath(u"missing.pdf"_s)},
        {u"--paper"_s, u"A4.Fullbleed"_s, u"-o"_s, u"Duplex=DuplexTumble"_s},
    };
    for (const QStringList &arguments : all) {
        const ProgramEnd dry = run(arguments + QStringList(u"--dry-run"_s));
        EXPECT_FALSE(QFile::exists(m_job));
        const ProgramEnd real = run(arguments);
        EXPECT_EQ(dry.status, real.status) << arguments.join(u' ').toStdString();
        EXPECT_EQ(dry.error, real.error);
        QFile::remove(m_job);
    }
    writeFile(m_job, "Somebody's.");
    const ProgramEnd dry = run({u"--dry-run"_s});
    EXPECT_EQ(dry.status, 5);
    EXPECT_EQ(dry.error, run({}).error);
    EXPECT_EQ(run({u"--dry-run"_s, u"--force"_s}).status, 0);
    EXPECT_EQ(readFile(m_job), "Somebody's.");
}

TEST_F(RunWithoutDialog, ExplainsWhatASettingHasChanged)
{
    const ProgramEnd end = run({u"--explain"_s, u"-o"_s, u"VKMediaType=Glossy"_s});
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.error, u"velkaro-print: Other Glossy Paper: Print Quality is now Photo (was "
                         u"Normal); Bi-Directional Printing is now Off (was On); Color Matching is "
                         u"now Natural (was Vivid).\n"_s);
}

TEST_F(RunWithoutDialog, ExplainsTheMediumOfBothSides)
{
    const ProgramEnd end = run({u"--explain"_s, u"-o"_s, u"Duplex=DuplexNoTumble"_s});
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.error, u"velkaro-print: Long-Edge Binding: Media Type is now Plain Paper "
                         u"(Two-Sided) (was Plain Paper).\n"_s);
}

TEST_F(RunWithoutDialog, ExplainsHowALostSettingIsToBeHad)
{
    const ProgramEnd end = run(
        {u"--explain"_s, u"-o"_s, u"VKMediaType=Glossy"_s, u"-o"_s, u"VKResolution=PlainFast"_s});
    EXPECT_EQ(end.status, 3);
    EXPECT_TRUE(end.error.endsWith(
        u"velkaro-print: Draft is not there for Other Glossy Paper. It is there for Plain Paper "
        u"and "
        u"Postcard, Address Side.\n"
        u"velkaro-print: It can be had with: -o VKMediaType=Plain -o VKResolution=PlainFast\n"
        u"velkaro-print: VKResolution=PlainFast cannot be chosen while the other settings are as "
        u"they are. Print Quality is Photo instead.\n"_s))
        << end.error.toStdString();
}

/// The lines of a replay without the numbers of the events, and without those of questions.
QList<QJsonObject> withoutQuestions(const QString &output)
{
    QList<QJsonObject> lines;
    for (const QString &text : output.split(u'\n', Qt::SkipEmptyParts)) {
        QJsonObject line = QJsonDocument::fromJson(text.toUtf8()).object();
        line.remove(u"event"_s);
        if (line["do"_L1] != "why"_L1)
            lines += line;
    }
    return lines;
}

TEST(ReplayOfAQuestion, ChangesNothingForTheOtherEvents)
{
    const QByteArrayList events = {
        R"({"do": "open", "ppd": "%1"})",
        R"({"do": "show", "panel": "print"})",
        R"({"do": "pick", "panel": "print", "control": "mediaTypePopup", "choice": "Glossy"})",
        R"({"do": "mark", "keyword": "Duplex", "choice": "DuplexTumble"})",
        R"({"do": "paper", "name": "A4.Fullbleed", "ppdName": "A4.Fullbleed", "width": 595, "height": 842})",
        R"({"do": "save", "panel": "print"})",
        R"({"do": "print"})",
    };
    const QByteArray questions = R"({"do": "why", "keyword": "VKResolution", "choice": "PlainFast"}
{"do": "why", "keyword": "PageSize", "choice": "A5"}
{"do": "why", "keyword": "VKMirror", "choice": "Perhaps"}
)";
    const QByteArray ppd = samplePPD(u"velkaro-px-t900"_s).toUtf8();
    const QByteArray plain = events.join('\n').replace("%1", ppd) + '\n';
    const QByteArray asked = events.join('\n' + questions).replace("%1", ppd) + '\n';
    const ProgramEnd without = runAlone({u"--replay"_s, u"-"_s}, plain);
    const ProgramEnd with = runAlone({u"--replay"_s, u"-"_s}, asked);
    EXPECT_EQ(with.status, 0);
    EXPECT_EQ(with.error, QString());
    EXPECT_EQ(with.output.count(u'\n'), 7 + 6 * 3);
    EXPECT_EQ(withoutQuestions(with.output), withoutQuestions(without.output));
}

TEST(ReplayOfAQuestion, HasTheObjectOfTheCommandLineAsItsResult)
{
    const QByteArray script = R"({"do": "open", "ppd": "%1"}
{"do": "why", "keyword": "VKResolution", "choice": "Photo"}
{"do": "why", "keyword": "VKResolution", "choice": "Nothing"}
)";
    const ProgramEnd end =
        runAlone({u"--replay"_s, u"-"_s},
                 QByteArray(script).replace("%1", samplePPD(u"velkaro-px-t900"_s).toUtf8()));
    const QStringList lines = end.output.split(u'\n');
    const QJsonObject answer = QJsonDocument::fromJson(lines[1].toUtf8()).object();
    const ProgramEnd why = runAlone(onSample({u"--why"_s, u"VKResolution=Photo"_s, u"--json"_s}));
    EXPECT_EQ(answer["result"_L1].toObject(),
              QJsonDocument::fromJson(why.output.toUtf8()).object());
    const QJsonObject unknown = QJsonDocument::fromJson(lines[2].toUtf8()).object();
    EXPECT_TRUE(unknown["result"_L1].isNull());
    EXPECT_EQ(unknown["error"_L1].toString(), u"Nothing is no value for VKResolution."_s);
}

} // namespace
