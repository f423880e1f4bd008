#include "platform/ppd/CupsPPD.h"
#include "tests/resources/Places.h"
#include "tests/support/Files.h"

#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QStringList>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

struct PPDCloser
{
    void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
};
using PPD = std::unique_ptr<ppd_file_t, PPDCloser>;

QString path(const QString &name)
{
    return sharedFile(u"ppd/"_s + name + u".ppd"_s);
}

PPD opened(const QString &name)
{
    PPD ppd(ppdOpenFile(QFile::encodeName(path(name)).constData()));
    EXPECT_TRUE(ppd) << qPrintable(path(name));
    if (ppd)
        ppdMarkDefaults(ppd.get());
    return ppd;
}

QStringList choices(ppd_file_t *ppd, const char *keyword)
{
    QStringList result;
    if (const ppd_option_t *option = ppdFindOption(ppd, keyword))
        for (int i = 0; i < option->num_choices; ++i)
            result << QString::fromLatin1(option->choices[i].choice);
    return result;
}

QString text(ppd_file_t *ppd, const char *keyword, const char *choice)
{
    const ppd_choice_t *found = ppdFindChoice(ppdFindOption(ppd, keyword), choice);
    return found ? QString::fromUtf8(found->text) : QString();
}

QStringList words(const char *list)
{
    return QString::fromLatin1(list).split(u' ');
}

class SamplePrinters : public testing::TestWithParam<const char *>
{};

TEST_P(SamplePrinters, ConformToTheRulesOfPrinterDescriptions)
{
    QProcess test;
    test.start(QStringLiteral(CUPSTESTPPD), {path(QLatin1String(GetParam()))});
    ASSERT_TRUE(test.waitForFinished());
    EXPECT_EQ(test.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(test.exitCode(), 0) << test.readAllStandardOutput().constData();
}

TEST_P(SamplePrinters, OpenWithDefaultsThatDoNotConflict)
{
    const PPD ppd = opened(QLatin1String(GetParam()));
    ASSERT_TRUE(ppd);
    EXPECT_EQ(ppdConflicts(ppd.get()), 0);
    EXPECT_STREQ(ppdFindMarkedChoice(ppd.get(), "VKMediaType")->choice, "Plain");
    EXPECT_STREQ(ppdFindMarkedChoice(ppd.get(), "VKResolution")->choice, "PlainNormal");
    EXPECT_STREQ(ppdFindMarkedChoice(ppd.get(), "VKBiDir")->choice, "ON");
    EXPECT_STREQ(ppdFindMarkedChoice(ppd.get(), "PageSize")->choice, "A4");
}

TEST_P(SamplePrinters, SayInTheJobWhichChoiceWasTaken)
{
    const PPD ppd = opened(QLatin1String(GetParam()));
    ASSERT_TRUE(ppd);
    const ppd_choice_t *glossy = ppdFindChoice(ppdFindOption(ppd.get(), "VKMediaType"), "Glossy");
    ASSERT_NE(glossy, nullptr);
    EXPECT_STREQ(glossy->code, "%% VKMediaType=Glossy");
}

INSTANTIATE_TEST_SUITE_P(
    All, SamplePrinters,
    testing::Values("velkaro-px-t900", "velkaro-mx-j710dw", "velkaro-px-330c", "velkaro-strange"),
    [](const auto &row) {
        return QString::fromLatin1(row.param).replace(u'-', u'_').toStdString();
    });

struct Choices
{
    const char *keyword;
    const char *names; // in the order of the pop-up, separated by spaces
};

// What the rules of the panels know by name.
const Choices FULL_MODEL[] = {
    {"VKMediaType", "Plain PlainDuplex Inkjet VelkaroGlossy VelkaroGlossyR VelkaroQM41Matte Glossy "
                    "HagakiAtena HagakiUra Transparencies PrintableDisc GlossyPrintableDisc"},
    {"VKResolution", "PlainFast PlainNormal High Best Fast Normal Photo DiscNormal DiscSlow"},
    {"VKMonoColor", "Color Mono"},
    {"VKColorPaperThick", "Regular Thick Thicker Env"},
    {"VKInputSlot", "Tray1 Tray2 MPTray AutoSelect"},
    {"VKDuplexMode", "Standard Fast Fine"},
    {"Duplex", "None DuplexNoTumble DuplexTumble"},
    {"VKMirror", "OFF ON"},
    {"VKReverse", "OFF ON"},
    {"VKJpeg", "Auto Fine Small"},
    {"VKBiDir", "OFF ON"},
    {"VKSlowDrying", "OFF ON"},
    {"VKVertLineAlignA3B4Ledger", "OFF ON"},
    {"VKVertLineAlignA4Letter", "OFF ON"},
    {"VKVertLineAlignOther", "OFF ON"},
    {"VKVertLineAlignDedicated", "OFF ON"},
    {"VKOutput", "Printer FAX"},
    {"VKColorMatching", "Natural Vivid None"},
    {"VKHalfTonePattern", "Dither Diffusion"},
    {"VKColorEnhancement", "OFF ON"},
};

TEST(FullModel, HasEveryKeywordAndChoiceThatTheRulesName)
{
    const PPD ppd = opened(u"velkaro-px-t900"_s);
    ASSERT_TRUE(ppd);
    for (const Choices &row : FULL_MODEL)
        EXPECT_EQ(choices(ppd.get(), row.keyword), words(row.names)) << row.keyword;
}

TEST(FullModel, HasFortyOneStepsOfEachEnhancementValueAndStartsAtZero)
{
    const PPD ppd = opened(u"velkaro-px-t900"_s);
    ASSERT_TRUE(ppd);
    for (const char *keyword : {"VKBrightness", "VKContrast", "VKRed", "VKGreen", "VKBlue"}) {
        const QStringList steps = choices(ppd.get(), keyword);
        EXPECT_EQ(steps.size(), 41) << keyword;
        EXPECT_EQ(steps.first(), u"-20"_s) << keyword;
        EXPECT_EQ(steps.last(), u"20"_s) << keyword;
        EXPECT_STREQ(ppdFindMarkedChoice(ppd.get(), keyword)->choice, "0") << keyword;
    }
}

TEST(FullModel, HasEveryKindOfPaperThatTheRulesName)
{
    const PPD ppd = opened(u"velkaro-px-t900"_s);
    ASSERT_TRUE(ppd);
    const QStringList papers = choices(ppd.get(), "PageSize");
    for (const QString &paper : words(
             "A3 A3.Fullbleed A3.LongGrain A3.ShortGrain A4 A4.Fullbleed A5 A6 A6.Fullbleed B4 "
             "B4.ShortGrain B5 Letter Letter.Fullbleed Legal Executive Folio Tabloid "
             "Tabloid.Fullbleed Tabloid.ShortGrain Postcard Postcard.Fullbleed VkHagaki_B "
             "DoublePostcardRotated VkA3 VkA3_S VkLedger_S VkB4_S 3.5x5 3.5x5.Fullbleed 4x6 "
             "4x6.Fullbleed 5x7 5x7.Fullbleed 5x8 5x8.Fullbleed Env10 EnvMonarch EnvDL EnvC5 EnvC6 "
             "EnvChou3 EnvChou4 EnvYou4 120x120mm VkDisc12cm"))
        EXPECT_TRUE(papers.contains(paper)) << qPrintable(paper);
}

TEST(FullModel, TakesCustomPapersAndLeavesEveryCombinationToThePanels)
{
    const PPD ppd = opened(u"velkaro-px-t900"_s);
    ASSERT_TRUE(ppd);
    EXPECT_TRUE(ppd->variable_sizes);
    EXPECT_EQ(ppd->custom_min[0], 182);
    EXPECT_EQ(ppd->custom_min[1], 254);
    EXPECT_EQ(ppd->custom_max[0], 936);
    EXPECT_EQ(ppd->custom_max[1], 1368);
    EXPECT_EQ(ppd->num_consts, 0);
    EXPECT_EQ(ppd->model_number, 12);
    EXPECT_STREQ(ppd->modelname, "Velkaro PX-T900");
    EXPECT_NE(ppdFindAttr(ppd.get(), "APSupportsCustomColorMatching", nullptr), nullptr);
}

TEST(FullModel, NamesTheOptionForDedicatedMediaAsTheSummaryKnowsIt)
{
    const PPD ppd = opened(u"velkaro-px-t900"_s);
    ASSERT_TRUE(ppd);
    EXPECT_STREQ(ppdFindOption(ppd.get(), "VKVertLineAlignDedicated")->text, "Dedicated Media");
}

// Read as text: libcups keeps only the language that its process runs in.
TEST(FullModel, HasGermanFrenchAndJapaneseTexts)
{
    const QString lines = QString::fromUtf8(readFile(path(u"velkaro-px-t900"_s)));
    EXPECT_TRUE(lines.contains(u"*cupsLanguages: \"en de fr ja\"\n"_s));
    EXPECT_TRUE(lines.contains(u"*de.Translation VKMediaType/Medientyp: \"\"\n"_s));
    EXPECT_TRUE(lines.contains(u"*de.VKMediaType Plain/Normalpapier: \"\"\n"_s));
    EXPECT_TRUE(lines.contains(u"*fr.VKMediaType Plain/Papier ordinaire: \"\"\n"_s));
    EXPECT_TRUE(lines.contains(u"*ja.Translation VKMediaType/用紙種類: \"\"\n"_s));
    EXPECT_TRUE(lines.contains(u"*ja.VKMediaType Plain/普通紙: \"\"\n"_s));
    EXPECT_TRUE(lines.contains(u"*ja.VKMediaType HagakiAtena/はがき 宛名面: \"\"\n"_s));
    EXPECT_TRUE(lines.contains(u"*ja.PageSize A4.Fullbleed/A4(四辺フチなし): \"\"\n"_s));
}

TEST(HomeModel, LacksTraysTwoSidedPrintingAndFaxAndMirrorsUnderTheStandardName)
{
    const PPD ppd = opened(u"velkaro-mx-j710dw"_s);
    ASSERT_TRUE(ppd);
    for (const char *keyword : {"VKInputSlot", "VKMirror", "Duplex", "VKDuplexMode", "VKOutput"})
        EXPECT_EQ(ppdFindOption(ppd.get(), keyword), nullptr) << keyword;
    EXPECT_EQ(choices(ppd.get(), "MirrorPrint"), words("False True"));
    EXPECT_FALSE(choices(ppd.get(), "VKMediaType").contains(u"PlainDuplex"_s));
    EXPECT_FALSE(choices(ppd.get(), "PageSize").contains(u"A3"_s));
    EXPECT_EQ(ppd->model_number, 0);
}

TEST(HomeModel, NamesThePostcardMediaSoThatOnlyJapaneseReadersSeeThem)
{
    const PPD ppd = opened(u"velkaro-mx-j710dw"_s);
    ASSERT_TRUE(ppd);
    EXPECT_TRUE(text(ppd.get(), "VKMediaType", "HagakiAtena").startsWith(u"Hagaki"_s));
    EXPECT_TRUE(text(ppd.get(), "VKMediaType", "HagakiUra").startsWith(u"Hagaki"_s));
}

TEST(OlderModel, LeavesColorsToTheApplicationAndCannotTurnGlossyPaperOver)
{
    const PPD ppd = opened(u"velkaro-px-330c"_s);
    ASSERT_TRUE(ppd);
    EXPECT_EQ(ppd->model_number, 7);
    EXPECT_STREQ(ppd->modelname, "Velkaro PX-330C");
    EXPECT_EQ(ppdFindAttr(ppd.get(), "APSupportsCustomColorMatching", nullptr), nullptr);
    ppdMarkOption(ppd.get(), "VKMediaType", "Glossy");
    EXPECT_GT(ppdMarkOption(ppd.get(), "Duplex", "DuplexNoTumble"), 0);
    EXPECT_EQ(ppdMarkOption(ppd.get(), "VKMediaType", "Plain"), 0);
}

struct StrangeText
{
    const char *keyword;
    const char *choice;
    QString text;
};

TEST(StrangePrinter, HasTextsThatLookLikeMarkupFormatsAndCommands)
{
    const PPD ppd = opened(u"velkaro-strange"_s);
    ASSERT_TRUE(ppd);
    const StrangeText rows[] = {
        {"VKMediaType", "Plain", u"<b>Plain</b> & Simple"_s},
        {"VKMediaType", "Inkjet", u"<img src=\"http://localhost/x.png\">"_s},
        {"VKMediaType", "VelkaroGlossyR", u"<a href=\"http://localhost/\">Click here</a>"_s},
        {"VKMediaType", "Glossy", u"100% &amp; %s %n %1 %@"_s},
        {"VKMediaType", "HagakiAtena", u"Hagaki"_s},
        {"VKMediaType", "HagakiUra", u"Hagak"_s},
        {"VKMediaType", "Transparencies", u"Line one\nLine two\ttab"_s},
        {"VKMediaType", "GlossyPrintableDisc", u"Escape \u001b[31mred\u001b[0m"_s},
        {"VKInputSlot", "Tray1", u"Tray"_s},
        {"VKInputSlot", "Tray2", u"Tray"_s},
    };
    for (const StrangeText &row : rows)
        EXPECT_EQ(text(ppd.get(), row.keyword, row.choice), row.text) << row.choice;
    EXPECT_STREQ(ppd->shortnickname, "Velkaro <i>Odd</i> & Co.");
}

TEST(StrangePrinter, HasFiveHundredChoicesOfOneKeyword)
{
    const PPD ppd = opened(u"velkaro-strange"_s);
    ASSERT_TRUE(ppd);
    const QStringList steps = choices(ppd.get(), "VKJpeg");
    EXPECT_EQ(steps.size(), 500);
    EXPECT_EQ(steps.first(), u"Step001"_s);
    EXPECT_EQ(steps.last(), u"Step500"_s);
}

} // namespace
