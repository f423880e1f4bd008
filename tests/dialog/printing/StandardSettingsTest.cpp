#include "dialog/printing/StandardSettings.h"

#include "dialog/host/PPDFile.h"
#include "dialog/host/PPDMarks.h"
#include "tests/built/BuiltFiles.h"
#include "tests/support/CaseName.h"
#include "tests/support/Files.h"
#include "tests/support/PPDSource.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

void PrintTo(const RequestedChoice &choice, std::ostream *out)
{
    *out << choice.keyword.toStdString() << '=' << choice.choice.toStdString();
}

namespace {

struct Standard
{
    const char *behaviour;
    RequestedChoice wanted;
    QList<RequestedChoice> named;
    QString sentence;
};

// As a plug-in has them; there is no VKInk=None.
const QList<AttributeRule> kRules{
    {{{u"VKInk"_s, u"All"_s}}, u"print-color-mode"_s, u"color"_s},
    {{{u"VKInk"_s, u"All"_s}}, u"print-color-mode"_s, u"color"_s},
    {{{u"VKInk"_s, u"Black"_s}}, u"print-color-mode"_s, u"monochrome"_s},
    {{{u"VKInk"_s, u"Grey"_s}}, u"print-color-mode"_s, u"monochrome"_s},
    {{{u"VKInk"_s, u"None"_s}}, u"print-color-mode"_s, u"monochrome"_s},
    {{{u"cupsPrintQuality"_s, u"Draft"_s}}, u"print-quality"_s, u"5"_s}};

class StandardSetting : public testing::TestWithParam<Standard>
{};

TEST_P(StandardSetting, IsNamedAsThePrinterDoes)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"printer.ppd"_s);
    writeFile(path,
              PPDSource()
                  .papers({{"A4", 595, 842}, {"A5", 420, 595}})
                  .option("Duplex/Two-Sided",
                          {"None/Off", "DuplexNoTumble/Long Edge", "DuplexTumble/Short Edge"})
                  .option("cupsPrintQuality/Quality", {"Draft/Draft", "Normal/Normal", "High/High"})
                  .option("VKInk/Ink", {"All/All", "Black/Black", "Grey/Grey"})
                  .text());
    const auto opened = openPPD(path);
    ASSERT_TRUE(opened) << opened.sentence().toStdString();
    ppd_file_t *ppd = opened->ppd.get();
    const QList<PPDMark> before = marksOf(ppd);
    const NamedWishes named = inPrintersNames(ppd, kRules, {GetParam().wanted});
    EXPECT_EQ(named.wanted, GetParam().named);
    EXPECT_EQ(named.state.sentence(), GetParam().sentence);
    EXPECT_EQ(marksOf(ppd), before);
}

INSTANTIATE_TEST_SUITE_P(
    Table, StandardSetting,
    testing::Values(
        Standard{"TwoSides",
                 {u"sides"_s, u"two-sided-long-edge"_s},
                 {{u"Duplex"_s, u"DuplexNoTumble"_s}},
                 {}},
        Standard{
            "OneSideWhichIsMarked", {u"sides"_s, u"one-sided"_s}, {{u"Duplex"_s, u"None"_s}}, {}},
        Standard{"NoSides",
                 {u"sides"_s, u"both"_s},
                 {},
                 u"both is no value for sides. It can be: one-sided, two-sided-long-edge, "
                 "two-sided-short-edge."_s},
        Standard{"APaper", {u"media"_s, u"A5"_s}, {{u"PageSize"_s, u"A5"_s}}, {}},
        Standard{"APaperByItsStandardName",
                 {u"media"_s, u"iso_a4_210x297mm"_s},
                 {{u"PageSize"_s, u"A4"_s}},
                 {}},
        Standard{"APaperOfOnesOwn",
                 {u"media"_s, u"Custom.100x150mm"_s},
                 {{u"PageSize"_s, u"Custom.100x150mm"_s}},
                 {}},
        Standard{"NoPaper",
                 {u"media"_s, u"B9"_s},
                 {},
                 u"B9 is no value for media. It can be: A4, A5."_s},
        Standard{
            "AQuality", {u"print-quality"_s, u"5"_s}, {{u"cupsPrintQuality"_s, u"High"_s}}, {}},
        Standard{"TheQualityThatIsMarked",
                 {u"print-quality"_s, u"3"_s},
                 {{u"cupsPrintQuality"_s, u"Draft"_s}},
                 {}},
        Standard{"NoQuality",
                 {u"print-quality"_s, u"9"_s},
                 {},
                 u"9 is no value for print-quality. It can be: 3, 4, 5."_s},
        Standard{"AChoiceThatThePlugInKnows",
                 {u"print-color-mode"_s, u"color"_s},
                 {{u"VKInk"_s, u"All"_s}},
                 {}},
        Standard{"SeveralChoicesThatThePlugInKnows",
                 {u"print-color-mode"_s, u"monochrome"_s},
                 {},
                 u"print-color-mode=monochrome stands for several choices of this printer. It can "
                 "be: VKInk=Black, VKInk=Grey."_s},
        Standard{"NoColour",
                 {u"print-color-mode"_s, u"sepia"_s},
                 {},
                 u"sepia is no value for print-color-mode. It can be: color, monochrome."_s},
        Standard{"AnotherName", {u"Finish"_s, u"Shiny"_s}, {{u"Finish"_s, u"Shiny"_s}}, {}}),
    CaseName());

/// What a rule says of several choices, of which some are left.
struct LeftChoices
{
    const char *behaviour;
    QStringList left;
    QList<RequestedChoice> named;
    QString sentence;
};

class ChoiceThatIsLeft : public testing::TestWithParam<LeftChoices>
{};

TEST_P(ChoiceThatIsLeft, StandsForTheStandardValueWhereItAloneIsLeft)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"printer.ppd"_s);
    writeFile(path, PPDSource().option("VKInk/Ink", {"All/All", "Black/B", "Grey/G"}).text());
    const auto opened = openPPD(path);
    ASSERT_TRUE(opened) << opened.sentence().toStdString();
    const NamedWishes named =
        inPrintersNames(opened->ppd.get(), kRules, {{u"print-color-mode"_s, u"monochrome"_s}},
                        [](QList<RequestedChoice> choices) {
                            choices.removeIf([](const RequestedChoice &one) {
                                return !GetParam().left.contains(one.choice);
                            });
                            return choices;
                        });
    EXPECT_EQ(named.wanted, GetParam().named);
    EXPECT_EQ(named.state.sentence(), GetParam().sentence);
}

const QString kSeveralInks = u"print-color-mode=monochrome stands for several choices of this "
                             "printer. It can be: VKInk=Black, VKInk=Grey."_s;

INSTANTIATE_TEST_SUITE_P(
    Table, ChoiceThatIsLeft,
    testing::Values(LeftChoices{"One", {u"All"_s, u"Grey"_s}, {{u"VKInk"_s, u"Grey"_s}}, {}},
                    LeftChoices{"Both", {u"Black"_s, u"Grey"_s}, {}, kSeveralInks},
                    LeftChoices{"None", {u"All"_s}, {}, kSeveralInks}),
    CaseName());

/// A printer that has nothing of the kind does not list values for it.
TEST(StandardName, IsNotThereWhereThePrinterHasNoChoiceForAnyValue)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"printer.ppd"_s);
    writeFile(path, PPDSource().papers({{"A4", 595, 842}}).text());
    const auto opened = openPPD(path);
    ASSERT_TRUE(opened) << opened.sentence().toStdString();
    for (const RequestedChoice &wanted :
         {RequestedChoice{u"sides"_s, u"one-sided"_s}, RequestedChoice{u"print-quality"_s, u"5"_s},
          RequestedChoice{u"print-color-mode"_s, u"color"_s},
          RequestedChoice{u"output-bin"_s, u"face-up"_s}}) {
        const NamedWishes named = inPrintersNames(opened->ppd.get(), {}, {wanted});
        EXPECT_TRUE(named.wanted.isEmpty());
        EXPECT_EQ(named.state.sentence(), u"The printer has no setting %1."_s.arg(wanted.keyword));
    }
}

} // namespace
