#include "dialog/printing/SettingRequests.h"

#include "dialog/job/Papers.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/printing/RequestedSettings.h"
#include "platform/ppd/PPDText.h"
#include "tests/built/BuiltFiles.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A job for the sample printer, whose own sizes go from 64 x 90 mm to 330 x 483 mm.
class Requests : public testing::Test
{
protected:
    Requests() { open({}); }

    /// With a host that refuses what is named, as SessionOptions::refused has it.
    void open(const QStringList &refused)
    {
        SessionOptions options;
        options.ppdPath = samplePPD(u"velkaro-px-t900"_s);
        options.bundlePath = builtBundle();
        options.refused = refused;
        m_job.setPrinter({}, openPrinter(options, *openPPD(options.ppdPath), {}));
    }

    Result<> make(const QString &keyword, const QString &choice)
    {
        return makeSettings(m_job, {{keyword, choice}});
    }

    QString paperName() { return m_job.paper().value_or(PMPaper()).name; }

    PrintJob m_job;
};

TEST_F(Requests, RefuseABadOrientationBeforeItChangesAnything)
{
    ASSERT_TRUE(make(u"orientation-requested"_s, u"landscape"_s));
    const Result<> made = make(u"orientation-requested"_s, u"sideways"_s);
    EXPECT_EQ(made.faultKind(), FaultKind::Request);
    EXPECT_EQ(made.sentence(),
              u"sideways is no value for orientation-requested. It can be: portrait, landscape, 3, "
              "4."_s);
    EXPECT_EQ(m_job.orientation(), PMOrientation::Landscape);
}

TEST_F(Requests, TakeAScalingByItsNameAndByTheWordOfLp)
{
    EXPECT_TRUE(make(u"print-scaling"_s, u"fill"_s));
    EXPECT_EQ(m_job.settings().scaling, PrintScaling::Fill);
    EXPECT_TRUE(make(u"fit-to-page"_s, u"true"_s));
    EXPECT_EQ(m_job.settings().scaling, PrintScaling::Fit);
    const Result<> made = make(u"print-scaling"_s, u"large"_s);
    EXPECT_EQ(made.faultKind(), FaultKind::Request);
    EXPECT_EQ(made.sentence(),
              u"large is no value for print-scaling. It can be: auto, none, fit, fill."_s);
    EXPECT_EQ(m_job.settings().scaling, PrintScaling::Fit);
}

TEST_F(Requests, TakeTheCollationByTheWordOfLp)
{
    EXPECT_TRUE(make(u"collate"_s, u"true"_s));
    EXPECT_EQ(m_job.settings().layout.collation, u"separate-documents-collated-copies"_s);
    EXPECT_TRUE(make(u"collate"_s, u"false"_s));
    EXPECT_EQ(m_job.settings().layout.collation, u"separate-documents-uncollated-copies"_s);
    EXPECT_EQ(make(u"collate"_s, u"1"_s).sentence(),
              u"1 is no value for collate. It can be: true, false."_s);
}

TEST_F(Requests, RefuseTwoScalingsWhateverTheyAreCalled)
{
    const Result<> made =
        makeSettings(m_job, {{u"fit-to-page"_s, u"true"_s}, {u"print-scaling"_s, u"fill"_s}});
    EXPECT_EQ(made.faultKind(), FaultKind::Request);
    EXPECT_EQ(
        made.sentence(),
        u"print-scaling=fit and print-scaling=fill cannot both be had: ask for one of them."_s);
    EXPECT_EQ(m_job.settings().scaling, PrintScaling::Automatic);
}

struct OwnSize
{
    const char *behaviour;
    QString paper;
    bool isTaken = false;
};

class OwnSizes : public Requests, public testing::WithParamInterface<OwnSize>
{};

TEST_P(OwnSizes, AreTakenWithinThePrintersLimits)
{
    const CustomLimits limits = customLimits(m_job.ppd()).value();
    ASSERT_EQ(QList<double>({limits.minWidth, limits.maxWidth, limits.minHeight, limits.maxHeight}),
              QList<double>({182, 936, 254, 1368}));
    const QString before = paperName();
    const Result<> chosen = make(u"PageSize"_s, GetParam().paper);
    EXPECT_EQ(chosen.faultKind(),
              GetParam().isTaken ? std::nullopt : std::optional(FaultKind::Request));
    EXPECT_EQ(paperName() != before, GetParam().isTaken);
}

INSTANTIATE_TEST_SUITE_P(Table, OwnSizes,
                         testing::Values(OwnSize{"Smallest", u"Custom.182x254"_s, true},
                                         OwnSize{"Largest", u"Custom.936x1368"_s, true},
                                         OwnSize{"InMillimetres", u"Custom.100x150mm"_s, true},
                                         OwnSize{"TooNarrow", u"Custom.181x254"_s},
                                         OwnSize{"TooWide", u"Custom.937x1368"_s},
                                         OwnSize{"TooLow", u"Custom.182x253"_s},
                                         OwnSize{"TooHigh", u"Custom.936x1369"_s},
                                         OwnSize{"ASheetForAHouse", u"Custom.9000x9000mm"_s}),
                         CaseName());

TEST_F(Requests, WantTheSizeOfAnOwnPaper)
{
    for (const QString &keyword : {u"PageSize"_s, u"pagesize"_s, u"PageRegion"_s}) {
        const Result<> chosen = make(keyword, u"custom"_s);
        EXPECT_EQ(chosen.faultKind(), FaultKind::Request);
        EXPECT_EQ(chosen.sentence(),
                  u"A paper of a size of your own needs that size, such as Custom.100x150mm."_s);
        EXPECT_EQ(paperName(), u"A4"_s);
    }
}

TEST_F(Requests, TakeThePaperUnderBothOfItsKeywords)
{
    EXPECT_TRUE(make(u"PageRegion"_s, u"a5"_s));
    EXPECT_EQ(paperName(), u"A5"_s);
    EXPECT_EQ(markedChoice(m_job.ppd(), u"PageSize"_s), u"A5"_s);
}

TEST_F(Requests, NameTheLimitsOfAnOwnSize)
{
    EXPECT_EQ(
        make(u"PageSize"_s, u"Custom.2000x3000mm"_s).sentence(),
        u"The printer takes no paper of 2000 × 3000 mm: sizes of your own go from 64.2 × 89.6 "
        "mm to 330.2 × 482.6 mm."_s);
}

struct HostRefusal
{
    const char *behaviour;
    QStringList refused;
    bool isMade = false;
};

class HostRefusals : public Requests, public testing::WithParamInterface<HostRefusal>
{};

TEST_P(HostRefusals, FailTheSettingThatTheyConcernAlone)
{
    open(GetParam().refused);
    const Result<> made = make(u"vkmediatype"_s, u"glossy"_s);
    EXPECT_EQ(made.sentence(), GetParam().isMade ? QString()
                                                 : u"VKMediaType=Glossy cannot be chosen while "
                                                   "the other settings are as they are. Media "
                                                   "Type is Plain Paper instead."_s);
    EXPECT_EQ(markedChoice(m_job.ppd(), u"VKMediaType"_s) == u"Glossy"_s, GetParam().isMade);
}

INSTANTIATE_TEST_SUITE_P(
    Table, HostRefusals,
    testing::Values(HostRefusal{"None", {}, true},
                    HostRefusal{"OfTheChoice", {u"VKMediaType=Glossy"_s}},
                    HostRefusal{"OfWhatTheRulesFollowWith", {u"VKResolution"_s}, true},
                    HostRefusal{"OfBoth", {u"VKMediaType"_s, u"VKResolution"_s}},
                    HostRefusal{"OfAll",
                                {u"VKMediaType"_s, u"VKResolution"_s, u"VKInputSlot"_s,
                                 u"VKBiDir"_s, u"VKSlowDrying"_s, u"VKMonoColor"_s}}),
    CaseName());

} // namespace
