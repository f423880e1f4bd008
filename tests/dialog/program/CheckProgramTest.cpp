// The look at a PPD, by the program as it is installed.
#include "tests/built/BuiltFiles.h"
#include "tests/dialog/program/RunAlone.h"
#include "tests/support/Files.h"
#include "tests/support/PPDSource.h"
#include "tests/support/QStringPrinting.h"
#include "tests/support/SmallPrinter.h"

#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Check
{
    int status = -1;
    QStringList findings;
    QString error;
};

Check check(const QStringList &arguments, const QString &language = u"en"_s)
{
    const ProgramEnd end = runAlone(arguments, {}, language);
    return {end.status, end.output.split(u'\n', Qt::SkipEmptyParts), end.error};
}

/// A PPD, and what is found in it.
struct Checked
{
    const char *name;
    QByteArray ppd;
    QStringList findings;
};

QByteArray sampleWith(const QByteArray &before, const QByteArray &after)
{
    QByteArray text = sampleText(u"velkaro-px-t900"_s);
    EXPECT_TRUE(text.contains(before)) << before.constData();
    return text.replace(before, after);
}

const QString kMatching = u"VKColorMatching needs APSupportsCustomColorMatching, which the PPD "
                          "lacks."_s;

std::vector<Checked> checked()
{
    return {
        {"WithoutAnyKeywordOfThePanels", smallPrinter().text(), {}},
        {"AMediumThatNoRuleKnows",
         sampleWith("*VKMediaType Glossy/", "*VKMediaType Canvas/"),
         {u"The panels do not know the choice Canvas of VKMediaType."_s}},
        {"AMediumInOtherLetters",
         sampleWith("*VKMediaType Glossy/", "*VKMediaType glossy/"),
         {u"The choice glossy of VKMediaType is Glossy to the panels: spell it so, or they take "
          "it for another one."_s}},
        {"KeywordsInOtherLettersAreUnderstood", sampleWith("VKMediaType", "vkmediatype"), {}},
        {"AMediumWithoutTheQualityThatItStartsWith",
         PPDSource()
             .option("VKMediaType", {"Plain", "Transparencies"})
             .option("VKResolution", {"PlainFast", "PlainNormal"})
             .text(),
         {u"VKMediaType=Transparencies needs VKResolution=Normal, which the PPD lacks."_s}},
        {"QualitiesWithoutMedia",
         PPDSource().option("VKResolution", {"PlainNormal", "Draft"}).text(),
         {u"VKResolution needs VKMediaType, which the PPD lacks."_s,
          u"The panels do not know the choice Draft of VKResolution."_s}},
        {"ATwoSidedMediumWithoutTwoSidedPrinting",
         PPDSource()
             .option("VKMediaType", {"Plain", "PlainDuplex"})
             .option("VKResolution", {"PlainNormal"})
             .text(),
         {u"VKMediaType=PlainDuplex needs Duplex, which the PPD lacks."_s}},
        {"ADiscPaperWithoutItsMedium",
         PPDSource()
             .papers({{"A4", 595, 842}, {"120x120mm", 340, 340}})
             .option("VKMediaType", {"Plain"})
             .option("VKResolution", {"PlainNormal"})
             .text(),
         {u"PageSize=120x120mm needs VKMediaType=PrintableDisc, which the PPD lacks."_s}},
        {"ThicknessWithoutEnvelopes",
         PPDSource().option("VKColorPaperThick", {"Regular", "Thick"}).text(),
         {u"VKColorPaperThick lacks the choice Env, which the panels set by themselves."_s}},
        {"BoxesOfOtherValues",
         PPDSource().option("VKBiDir", {"Off", "Yes"}).option("MirrorPrint", {"False"}).text(),
         {u"The choice Off of VKBiDir is OFF to the panels: spell it so, or they take it for "
          "another one."_s,
          u"The panels do not know the choice Yes of VKBiDir."_s,
          u"VKBiDir lacks the choice ON, which the panels set by themselves."_s,
          u"MirrorPrint lacks the choice True, which the panels set by themselves."_s}},
        {"ADefaultInOtherLetters",
         sampleWith("*DefaultDuplex: None", "*DefaultDuplex: NONE"),
         {u"NONE, the default of Duplex, is none of its choices as they are spelt."_s}},
        {"AColourMatchingWithoutAPicture",
         PPDSource()
             .attribute("APSupportsCustomColorMatching", "true")
             .option("VKColorMatching", {"Natural", "Vivid", "Warm"})
             .text(),
         {u"The preview has no picture for the choice Warm of VKColorMatching."_s}},
        {"ColourMatchingByAnotherPrinter",
         PPDSource().option("VKColorMatching", {"Vivid"}).text(),
         {u"VKColorMatching lacks the choice Natural, which the panels set by themselves."_s,
          kMatching}},
    };
}

class CheckOf : public testing::TestWithParam<Checked>
{};

TEST_P(CheckOf, TellsWhatThePanelsWillNotUnderstand)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"the.ppd"_s);
    writeFile(path, GetParam().ppd);
    const Check found = check({u"--check-ppd"_s, path});
    EXPECT_EQ(found.status, 0);
    EXPECT_EQ(found.findings, GetParam().findings);
    EXPECT_EQ(found.error, QString());
}

INSTANTIATE_TEST_SUITE_P(PPDs, CheckOf, testing::ValuesIn(checked()),
                         [](const auto &row) { return std::string(row.param.name); });

TEST(CheckProgram, FindsNothingButTheTruthInTheSamples)
{
    const auto findings = [](const QString &sample) {
        const Check found = check({u"--check-ppd"_s, samplePPD(sample)});
        EXPECT_EQ(found.status, 0);
        return found.findings;
    };
    EXPECT_EQ(findings(u"velkaro-px-t900"_s), QStringList());
    EXPECT_EQ(findings(u"velkaro-mx-j710dw"_s), QStringList());
    // This model leaves the colours to the application.
    EXPECT_EQ(findings(u"velkaro-px-330c"_s), QStringList{kMatching});
}

TEST(CheckProgram, TellsItInTheUsersLanguage)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"the.ppd"_s);
    writeFile(path, PPDSource().option("VKResolution", {"PlainNormal"}).text());
    EXPECT_EQ(check({u"--check-ppd"_s, path}, u"ja"_s).findings,
              QStringList{u"VKResolution に必要な VKMediaType が PPD にありません。"_s});
}

TEST(CheckProgram, TakesThePlugInThatIsNamed)
{
    const QString ppd = samplePPD(u"velkaro-px-t900"_s);
    EXPECT_EQ(check({u"--check-ppd"_s, ppd, u"--plug-in"_s, builtBundle()}).status, 0);
    const Check missing = check({u"--check-ppd"_s, ppd, u"--plug-in=/nowhere"_s});
    EXPECT_EQ(missing.status, 7);
    EXPECT_TRUE(missing.error.contains(u"/nowhere"_s)) << missing.error.toStdString();
}

TEST(CheckProgram, EndsWith7WithAPlugInThatCannotCheck)
{
    const QString bundle = QStringLiteral(FIXTURE_FOLDER "/Spy.bundle");
    const Check found =
        check({u"--check-ppd"_s, samplePPD(u"velkaro-px-t900"_s), u"--plug-in"_s, bundle});
    EXPECT_EQ(found.status, 7);
    EXPECT_EQ(found.findings, QStringList());
    EXPECT_EQ(found.error, u"velkaro-print: The plug-in %1 cannot check a PPD.\n"_s.arg(bundle));
}

TEST(CheckProgram, EndsWith2ForWhatIsNoPPD)
{
    const Check missing = check({u"--check-ppd"_s, u"/nowhere.ppd"_s});
    EXPECT_EQ(missing.status, 2);
    EXPECT_EQ(missing.findings, QStringList());
    EXPECT_TRUE(missing.error.contains(u"/nowhere.ppd"_s)) << missing.error.toStdString();
    const QTemporaryDir folder;
    writeFile(folder.filePath(u"the.ppd"_s), "Not a PPD.\n");
    EXPECT_EQ(check({u"--check-ppd"_s, folder.filePath(u"the.ppd"_s)}).status, 2);
}

} // namespace
