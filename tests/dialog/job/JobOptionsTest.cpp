#include "dialog/job/JobOptions.h"
#include "dialog/host/PPDFile.h"
#include "dialog/host/PPDMarks.h"
#include "dialog/job/SavedSettings.h"
#include "tests/built/BuiltFiles.h"
#include "tests/endtoend/JobPrinting.h"
#include "tests/support/Files.h"

#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class JobOptionsOf : public testing::Test
{
protected:
    JobOptionsOf() : m_opened(*openPPD(samplePPD(u"velkaro-px-t900"_s)))
    {
        m_values.ppd = m_opened.ppd.get();
        m_values.defaultMarks = m_opened.defaults;
        m_values.format.paper = PMPaper{u"A4"_s, u"A4"_s, 595, 842};
    }

    void ticket(const QString &key, const QVariant &value)
    {
        PMPrintSettingsSetValue(&m_values.ticket, key, value, false);
    }

    /// "name=value" of every option, in the order of the job.
    QStringList allMade() const
    {
        QStringList lines;
        for (const JobOption &option : jobOptions(m_values).options)
            lines += option.name + u'=' + option.value;
        return lines;
    }

    /// The same without the automatic scaling, which is of every job that says nothing else.
    QStringList made() const
    {
        QStringList lines = allMade();
        EXPECT_EQ(lines.removeAll(u"print-scaling=auto"_s), 1);
        return lines;
    }

    const QString m_collated = u"multiple-document-handling=separate-documents-collated-copies"_s;
    OpenedPPD m_opened;
    JobValues m_values;
};

TEST_F(JobOptionsOf, AnUntouchedJobAreItsScalingAlone)
{
    EXPECT_EQ(allMade(), QStringList{u"print-scaling=auto"_s});
}

TEST_F(JobOptionsOf, PicksAreThoseThatDifferFromThePPD)
{
    ASSERT_TRUE(forceChoice(m_values.ppd, u"VKMediaType"_s, u"Glossy"_s));
    ASSERT_TRUE(forceChoice(m_values.ppd, u"PageSize"_s, u"A4.Fullbleed"_s));
    EXPECT_EQ(made(), (QStringList{u"PageSize=A4.Fullbleed"_s, u"VKMediaType=Glossy"_s}));
}

TEST_F(JobOptionsOf, TheHostSettingsTravelBesideThem)
{
    m_values.settings.copies = 3;
    m_values.settings.pageRanges = u"1-2,5"_s;
    m_values.settings.scaling = PrintScaling::Fill;
    m_values.settings.layout.pageSet = u"odd"_s;
    m_values.format.orientation = PMOrientation::Landscape;
    EXPECT_EQ(allMade(), (QStringList{u"copies=3"_s, m_collated, u"page-ranges=1-2,5"_s,
                                      u"print-scaling=fill"_s, u"orientation-requested=4"_s,
                                      u"page-set=odd"_s}));
}

// A server that is told nothing prints them page by page.
TEST_F(JobOptionsOf, SeveralCopiesSayHowTheyCome)
{
    const QString uncollated = u"multiple-document-handling=separate-documents-uncollated-copies"_s;
    EXPECT_EQ(made(), QStringList());
    m_values.settings.copies = 2;
    EXPECT_EQ(made(), (QStringList{u"copies=2"_s, m_collated}));
    m_values.settings.layout.collation = uncollated.section(u'=', 1);
    EXPECT_EQ(made(), (QStringList{u"copies=2"_s, uncollated}));
    m_values.settings.layout.collation.clear();
    m_values.saved = {{u"multiple-document-handling"_s, uncollated.section(u'=', 1)}};
    EXPECT_EQ(made(), (QStringList{uncollated, u"copies=2"_s})) << "it was saved";
}

TEST_F(JobOptionsOf, TheTicketTravelsUnderVendorKeysOnly)
{
    ticket(u"com.velkaro.print.PrintSettings.T2T_Brightness"_s, 7);
    ticket(u"com.velkaro.print.PrintSettings.T2T_Red"_s, -2.5);
    ticket(u"com.velkaro.print.PrintSettings.advancedItem"_s, true);
    ticket(u"org.example.other"_s, u"text"_s);
    ticket(u"com.apple.print.SomethingElse"_s, u"host"_s);
    ticket(u"VKColorMatching"_s, u"Natural"_s);
    ticket(u"AP_ColorMatchingMode"_s, u"AP_ApplicationColorMatching"_s);
    EXPECT_EQ(made(), (QStringList{u"AP_ColorMatchingMode=AP_ApplicationColorMatching"_s,
                                   u"com.velkaro.print.PrintSettings.T2T_Brightness=7"_s,
                                   u"com.velkaro.print.PrintSettings.T2T_Red=-2.5"_s,
                                   u"com.velkaro.print.PrintSettings.advancedItem=true"_s,
                                   u"org.example.other=text"_s}));
}

TEST_F(JobOptionsOf, ACustomSizeIsAPageSizeInPoints)
{
    m_values.format.paper = PMPaper{u"Custom.283.465x425.197"_s, QString(), 283.464, 425.197};
    EXPECT_EQ(made(), QStringList{u"PageSize=Custom.283.46x425.2"_s});
}

TEST_F(JobOptionsOf, AnUprightPageOnASheetThatLiesIsNotTurnedAgain)
{
    m_values.havePages = true;
    EXPECT_EQ(made(), QStringList());
    m_values.format.orientation = PMOrientation::Landscape;
    EXPECT_EQ(made(), (QStringList{u"orientation-requested=4"_s, u"pdfAutoRotate=false"_s}));
}

TEST_F(JobOptionsOf, APageThatIsMappedToAnotherPaperPrintsOnThatPaper)
{
    ticket(u"com.apple.print.PageToPaperMappingMediaName"_s, u"A3"_s);
    EXPECT_EQ(made(), QStringList{u"PageSize=A3"_s});
    m_values.format.paper = PMPaper{u"Custom.300x400"_s, QString(), 300, 400};
    EXPECT_EQ(made(), QStringList{u"PageSize=A3"_s});
    ticket(u"com.apple.print.PageToPaperMappingMediaName"_s, u"NoSuchPaper"_s);
    EXPECT_EQ(made(), QStringList{u"PageSize=Custom.300x400"_s});
}

TEST_F(JobOptionsOf, ASavedScalingIsSentOnce)
{
    const SavedSettings saved =
        applySavedOptions(m_values.ppd, {{u"fit-to-page"_s, u"true"_s}, {u"number-up"_s, u"2"_s}});
    m_values.settings = saved.settings;
    m_values.saved = saved.others;
    EXPECT_EQ(allMade(), (QStringList{u"print-scaling=fit"_s, u"number-up=2"_s}));
}

TEST_F(JobOptionsOf, SavedSettingsTravelUnlessThePPDHasThem)
{
    m_values.saved = {{u"media"_s, u"a4"_s},
                      {u"VKMediaType"_s, u"Glossy"_s},
                      {u"number-up"_s, u"2"_s},
                      {u"copies"_s, u"9"_s}};
    m_values.settings.copies = 2;
    EXPECT_EQ(made(), (QStringList{u"number-up=2"_s, u"copies=2"_s, m_collated}));
}

TEST_F(JobOptionsOf, AQueueWithoutAPPDAreTheHostSettingsAlone)
{
    m_values.ppd = nullptr;
    m_values.settings.copies = 2;
    m_values.format.paper = PMPaper{u"Custom"_s, QString(), 300, 400};
    EXPECT_EQ(made(), (QStringList{u"copies=2"_s, m_collated}));
}

TEST_F(JobOptionsOf, WhatMustNotBeSentIsNamedByItsNameOrItsValue)
{
    ticket(u"com.velkaro.bad key"_s, u"x"_s);
    ticket(u"com.velkaro.evil"_s, u"a\nFoomaticRIPCommandLine: b"_s);
    ticket(u"com.velkaro.good"_s, u"x"_s);
    const JobOptions job = jobOptions(m_values);
    EXPECT_EQ(job.options,
              (QList<JobOption>{{u"print-scaling"_s, u"auto"_s}, {u"com.velkaro.good"_s, u"x"_s}}));
    EXPECT_EQ(
        job.faults,
        (QStringList{u"The setting \"com.velkaro.bad key\" cannot be sent: a print server may be "
                     "given no setting of that name."_s,
                     u"The setting com.velkaro.evil cannot be sent: \"a "
                     "FoomaticRIPCommandLine: b\" is no value that a print server may be "
                     "given."_s}));
}

/// A PPD whose options say what is not theirs to say, by their defaults alone.
QByteArray hostilePPD()
{
    const auto option = [](const QByteArray &keyword, const QByteArray &one,
                           const QByteArray &other) {
        const auto inGroup = [&](const QByteArray &group, const QByteArray &choice) {
            return "*OpenGroup: " + group + "\n*OpenUI *" + keyword + "/Paper Type: PickOne\n" +
                   "*Default" + keyword + ": " + choice + "\n*" + keyword + ' ' + one +
                   ": \"\"\n*" + keyword + ' ' + other + ": \"\"\n*CloseUI: *" + keyword +
                   "\n*CloseGroup: " + group + '\n';
        };
        return inGroup("First", one) + inGroup("Second", other);
    };
    return readFile(samplePPD(u"velkaro-px-t900"_s)) + option("copies", "1", "999") +
           option("page-ranges", "1-9", "2-2") + option("raw", "false", "true") +
           option("job-hold-until", "no-hold", "indefinite") + option("Finish", "Matt", "Shiny");
}

class JobOptionsOfAHostilePPD : public JobOptionsOf
{
protected:
    JobOptionsOfAHostilePPD()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"hostile.ppd"_s);
        writeFile(path, hostilePPD());
        m_opened = *openPPD(path);
        m_values.ppd = m_opened.ppd.get();
        m_values.defaultMarks = m_opened.defaults;
    }
};

TEST_F(JobOptionsOfAHostilePPD, AreNoneWhileNothingIsPicked)
{
    ASSERT_TRUE(m_values.ppd);
    EXPECT_EQ(made(), QStringList());
}

TEST_F(JobOptionsOfAHostilePPD, HaveNoReservedKeywordHoweverItIsMarked)
{
    ASSERT_TRUE(m_values.ppd);
    for (const auto &[keyword, choices] :
         {std::pair(u"copies"_s, QStringList{u"1"_s, u"999"_s}),
          std::pair(u"raw"_s, QStringList{u"false"_s, u"true"_s}),
          std::pair(u"job-hold-until"_s, QStringList{u"no-hold"_s, u"indefinite"_s})})
        for (const QString &choice : choices) {
            ASSERT_TRUE(forceChoice(m_values.ppd, keyword, choice));
            EXPECT_EQ(made(), QStringList()) << keyword.toStdString();
        }
}

TEST_F(JobOptionsOfAHostilePPD, KeepTheSavedSettingsOfThoseNames)
{
    ASSERT_TRUE(m_values.ppd);
    const SavedSettings saved = applySavedOptions(
        m_values.ppd, {{u"copies"_s, u"3"_s}, {u"job-hold-until"_s, u"evening"_s}});
    EXPECT_EQ(saved.settings.copies, 3);
    m_values.settings = saved.settings;
    m_values.saved = saved.others;
    EXPECT_EQ(made(), (QStringList{u"copies=3"_s, m_collated, u"job-hold-until=evening"_s}));
}

struct Sendable
{
    const char *name;
    JobOption option;
    bool may;
};

void PrintTo(const Sendable &row, std::ostream *out)
{
    *out << row.name;
}

class IsSendable : public testing::TestWithParam<Sendable>
{};

TEST_P(IsSendable, IsDecidedByNameAndValue)
{
    EXPECT_EQ(isSendable(GetParam().option), GetParam().may);
}

INSTANTIATE_TEST_SUITE_P(
    Table, IsSendable,
    testing::Values(Sendable{"Ordinary", {u"VKMediaType"_s, u"Glossy"_s}, true},
                    Sendable{"EveryNameCharacter", {u"aZ09._-"_s, u"x"_s}, true},
                    Sendable{"PrintableValue", {u"a"_s, u"two words, \"%$&\" 写真"_s}, true},
                    Sendable{"SpaceInName", {u"a b"_s, u"x"_s}, false},
                    Sendable{"LetterOutsideAscii", {u"é"_s, u"x"_s}, false},
                    Sendable{"NoName", {u""_s, u"x"_s}, false},
                    Sendable{"NoValue", {u"a"_s, u""_s}, false},
                    Sendable{"Newline", {u"a"_s, u"x\ny"_s}, false},
                    Sendable{"Escape", {u"a"_s, u"x\u001by"_s}, false},
                    Sendable{"LineSeparator", {u"a"_s, u"x\u2028y"_s}, false},
                    Sendable{"DirectionOverride", {u"a"_s, u"x\u202ey"_s}, false},
                    Sendable{"SurrogatePair", {u"a"_s, u"x\U0001F5A8y"_s}, true},
                    Sendable{"UnpairedHighSurrogate", {u"a"_s, u"x"_s + QChar(0xD83D)}, false},
                    Sendable{"UnpairedLowSurrogate", {u"a"_s, QChar(0xDDA8) + u"y"_s}, false},
                    Sendable{"UnprintableSurrogatePair", {u"a"_s, u"x\U000E0041y"_s}, false},
                    Sendable{"LongestValue", {u"a"_s, QString(255, u'x')}, true},
                    Sendable{"TooLongValue", {u"a"_s, QString(256, u'x')}, false},
                    Sendable{"TooManyBytes", {u"a"_s, QString(100, u'写')}, false}),
    [](const auto &row) { return std::string(row.param.name); });

} // namespace
