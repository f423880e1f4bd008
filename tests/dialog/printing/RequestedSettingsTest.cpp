#include "dialog/printing/RequestedSettings.h"

#include "dialog/printing/PrintJob.h"
#include "dialog/printing/ScriptedAnswers.h"
#include "platform/ppd/PPDText.h"
#include "tests/built/BuiltFiles.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Settings on a sample printer, typed as on the command line.
struct Wish
{
    const char *behaviour;
    const char *printer;
    QStringList settings;
    QStringList marked; ///< what the job has in the end
    std::optional<FaultKind> fault = {};
    QString sentence = {};
};

RequestedChoice requested(const QString &setting)
{
    return {setting.section(u'=', 0, 0), setting.section(u'=', 1)};
}

class Wishes : public testing::TestWithParam<Wish>
{
protected:
    /// Makes the settings, in the order given, on a printer that was just opened.
    Result<> make(const QStringList &settings)
    {
        SessionOptions options;
        options.ppdPath = samplePPD(QLatin1String(GetParam().printer));
        options.bundlePath = builtBundle();
        m_job.setPrinter({}, openPrinter(options, *openPPD(options.ppdPath), {}));
        QList<RequestedChoice> wanted;
        for (const QString &setting : settings)
            wanted += requested(setting);
        ScriptedAnswers answers(true);
        return makeSettings(m_job, wanted,
                            [&](const RequestedChoice &) { answers.answerSheets(); });
    }

    PrintJob m_job;
};

TEST_P(Wishes, ComeToTheSameInAnyOrder)
{
    QStringList settings = GetParam().settings;
    std::ranges::sort(settings);
    do {
        SCOPED_TRACE(settings.join(u' ').toStdString());
        const Result<> made = make(settings);
        EXPECT_EQ(made.faultKind(), GetParam().fault);
        EXPECT_EQ(made.sentence(), GetParam().sentence);
        for (const QString &mark : GetParam().marked)
            EXPECT_EQ(markedChoice(m_job.ppd(), requested(mark).keyword), requested(mark).choice);
    } while (std::ranges::next_permutation(settings).found);
}

constexpr auto kFull = "velkaro-px-t900";

INSTANTIATE_TEST_SUITE_P(
    Table, Wishes,
    testing::Values(
        Wish{"AQualityOfBothSides",
             kFull,
             {u"VKResolution=PlainFast"_s, u"Duplex=DuplexNoTumble"_s},
             {u"VKMediaType=PlainDuplex"_s, u"VKResolution=PlainFast"_s,
              u"Duplex=DuplexNoTumble"_s}},
        Wish{"AMediumThatBothSidesReplace",
             kFull,
             {u"VKMediaType=Glossy"_s, u"Duplex=DuplexNoTumble"_s},
             {u"Duplex=DuplexNoTumble"_s, u"VKMediaType=PlainDuplex"_s},
             FaultKind::Vetoed,
             u"VKMediaType=Glossy cannot be chosen while the other settings are as they are. Media "
             "Type is Plain Paper (Two-Sided) instead."_s},
        Wish{"TheFormsOfOneMedium",
             kFull,
             {u"VKMediaType=Plain"_s, u"VKMediaType=PlainDuplex"_s, u"Duplex=DuplexTumble"_s},
             {u"VKMediaType=PlainDuplex"_s}},
        Wish{"AHiddenFormAlone", kFull, {u"VKMediaType=PlainDuplex"_s}, {u"VKMediaType=Plain"_s}},
        Wish{"AQualityThatTheMediumLacks",
             kFull,
             {u"VKMediaType=Glossy"_s, u"VKResolution=High"_s},
             {u"VKMediaType=Glossy"_s, u"VKResolution=Photo"_s},
             FaultKind::Vetoed,
             u"VKResolution=High cannot be chosen while the other settings are as they are. Print "
             "Quality is Photo instead."_s},
        Wish{"ABoxThatIsOffAndOut",
             kFull,
             {u"VKMediaType=Glossy"_s, u"VKBiDir=OFF"_s},
             {u"VKMediaType=Glossy"_s, u"VKBiDir=OFF"_s}},
        Wish{"AllThatWasLost",
             kFull,
             {u"VKMediaType=Glossy"_s, u"VKResolution=High"_s, u"VKBiDir=ON"_s},
             {u"VKMediaType=Glossy"_s},
             FaultKind::Vetoed,
             u"VKBiDir=ON cannot be chosen while the other settings are as they are. "
             "Bi-Directional Printing is Off instead. VKResolution=High cannot be chosen while the "
             "other "
             "settings are as they are. Print Quality is Photo instead."_s},
        Wish{"APaperAndWhatItRulesOut",
             kFull,
             {u"PageSize=A4.Fullbleed"_s, u"VKResolution=PlainFast"_s},
             {u"PageSize=A4.Fullbleed"_s, u"VKResolution=PlainNormal"_s},
             FaultKind::Vetoed,
             u"VKResolution=PlainFast cannot be chosen while the other settings are as they are. "
             "Print Quality is Normal instead."_s},
        Wish{"WhatSwitchesThePanelsOff",
             kFull,
             {u"VKOutput=FAX"_s, u"VKMediaType=Glossy"_s, u"copies=2"_s},
             {u"VKOutput=FAX"_s, u"VKMediaType=Glossy"_s}},
        Wish{"ASliderAndItsBox",
             kFull,
             {u"VKRed=7"_s, u"VKColorEnhancement=ON"_s, u"Duplex=DuplexNoTumble"_s},
             {u"VKColorEnhancement=ON"_s}},
        Wish{
            "ASliderThatIsSwitchedOff",
            kFull,
            {u"VKRed=7"_s, u"VKMonoColor=Mono"_s, u"VKColorEnhancement=ON"_s},
            {u"VKMonoColor=Mono"_s},
            FaultKind::Vetoed,
            u"VKRed=7 cannot be chosen while the other settings are as they are. Red is 0 instead."_s},
        Wish{"WhatTheConstraintsForbid",
             "velkaro-px-330c",
             {u"Duplex=DuplexTumble"_s, u"VKMediaType=Glossy"_s},
             {u"Duplex=DuplexTumble"_s},
             FaultKind::Vetoed,
             u"\"Media Type: Glossy Paper\" cannot be chosen: the printer does not allow it "
             "together with \"Two-Sided Printing: Short-Edge Binding\"."_s},
        Wish{"OneThingInTwoWays",
             kFull,
             {u"VKMediaType=Glossy"_s, u"vkmediatype=Inkjet"_s, u"VKMonoColor=Mono"_s},
             {u"VKMediaType=Plain"_s, u"VKMonoColor=Mono"_s},
             FaultKind::Request,
             u"VKMediaType=Glossy and VKMediaType=Inkjet cannot both be had: ask for one of "
             "them."_s},
        Wish{"OneThingTwice",
             kFull,
             {u"vkmediatype=glossy"_s, u"VKMediaType=Glossy"_s, u"orientation-requested=4"_s,
              u"orientation-requested=landscape"_s},
             {u"VKMediaType=Glossy"_s}},
        Wish{"TwoThatNobodyKnows",
             kFull,
             {u"VKMediaType=Papyrus"_s, u"Frob=1"_s, u"VKMonoColor=Mono"_s},
             {u"VKMediaType=Plain"_s, u"VKMonoColor=Mono"_s},
             FaultKind::Request,
             u"The printer has no setting Frob."_s}),
    CaseName());

} // namespace
