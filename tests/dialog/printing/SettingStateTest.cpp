#include "dialog/printing/SettingState.h"

#include "dialog/job/Papers.h"
#include "dialog/printing/ChangeWords.h"
#include "dialog/printing/KeptSettings.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/printing/RequestedSettings.h"
#include "platform/ppd/PPDText.h"
#include "tests/built/BuiltFiles.h"
#include "tests/support/CaseName.h"
#include "tests/support/PPDSource.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QList<PPDMark> kFormerMarks{
    {u"Medium"_s, u"Plain"_s}, {u"Quality"_s, u"Normal"_s}, {u"Tray"_s, u"Front"_s}};

ChoiceForms plainForms()
{
    return ChoiceForms({{u"Medium"_s, QVariantList{QStringList{u"Plain"_s, u"PlainDuplex"_s}}}});
}

struct Event
{
    const char *behaviour;
    PPDMark pick;
    QList<PPDMark> marks;
    QList<PPDMark> shown;
    QList<SettingChange> beside;
    QList<SettingChange> unlike = {};
};

class Events : public testing::TestWithParam<Event>
{};

TEST_P(Events, LeaveChangesBesideThePick)
{
    const SettingState before{kFormerMarks, {}};
    const SettingState after{GetParam().marks, GetParam().shown};
    EXPECT_EQ(changesBeside(GetParam().pick, before, after, plainForms()), GetParam().beside);
    EXPECT_EQ(unlikeShown(after, plainForms()), GetParam().unlike);
}

INSTANTIATE_TEST_SUITE_P(
    Table, Events,
    testing::Values(
        Event{"NothingButThePick",
              {u"Quality"_s, u"Photo"_s},
              {{u"Medium"_s, u"Plain"_s}, {u"Quality"_s, u"Photo"_s}, {u"Tray"_s, u"Front"_s}},
              {{u"Quality"_s, u"Photo"_s}},
              {}},
        Event{"WhatTheRulesFollowWith",
              {u"Medium"_s, u"Glossy"_s},
              {{u"Medium"_s, u"Glossy"_s}, {u"Quality"_s, u"Photo"_s}, {u"Tray"_s, u"Rear"_s}},
              {{u"Medium"_s, u"Glossy"_s}},
              {{u"Quality"_s, u"Normal"_s, u"Photo"_s}, {u"Tray"_s, u"Front"_s, u"Rear"_s}}},
        Event{"AChangeWithoutAPick",
              {},
              {{u"Medium"_s, u"Plain"_s}, {u"Quality"_s, u"Photo"_s}, {u"Tray"_s, u"Front"_s}},
              {},
              {{u"Quality"_s, u"Normal"_s, u"Photo"_s}}},
        Event{
            "NoOtherFormOfAChoice",
            {},
            {{u"Medium"_s, u"PlainDuplex"_s}, {u"Quality"_s, u"Normal"_s}, {u"Tray"_s, u"Front"_s}},
            {{u"Medium"_s, u"Plain"_s}},
            {}},
        Event{"APickThatBecameAnother",
              {u"Medium"_s, u"Glossy"_s},
              {{u"Medium"_s, u"Card"_s}, {u"Quality"_s, u"Normal"_s}, {u"Tray"_s, u"Front"_s}},
              {{u"Medium"_s, u"Card"_s}},
              {{u"Medium"_s, u"Glossy"_s, u"Card"_s}}},
        Event{
            "APickThatIsShownAndNotMarked",
            {u"Medium"_s, u"Glossy"_s},
            {{u"Medium"_s, u"PlainDuplex"_s}, {u"Quality"_s, u"Normal"_s}, {u"Tray"_s, u"Front"_s}},
            {{u"Medium"_s, u"Glossy"_s}},
            {},
            {{u"Medium"_s, u"Glossy"_s, u"PlainDuplex"_s}}},
        Event{"ARefusedPick",
              {u"Medium"_s, QString()},
              kFormerMarks,
              {{u"Medium"_s, u"Plain"_s}},
              {}}),
    CaseName());

/// A job on the full sample printer.
class SampleState : public testing::Test
{
protected:
    SampleState()
    {
        SessionOptions options;
        options.ppdPath = samplePPD(u"velkaro-px-t900"_s);
        options.bundlePath = builtBundle();
        m_job.setPrinter({}, openPrinter(options, *openPPD(options.ppdPath), {}));
    }

    PrintJob m_job;
};

TEST_F(SampleState, IsShownAsItIsMarkedByEveryControl)
{
    EXPECT_TRUE(settingState(m_job).shown.isEmpty()) << "no view is loaded";
    ASSERT_TRUE(
        makeSettings(m_job, {{u"VKMirror"_s, u"ON"_s}, {u"VKColorMatching"_s, u"Natural"_s}}));
    const SettingState state = settingState(m_job);
    EXPECT_TRUE(state.shown.contains(PPDMark{u"VKMediaType"_s, u"Plain"_s}));
    EXPECT_TRUE(state.shown.contains(PPDMark{u"VKMirror"_s, u"ON"_s}));
    EXPECT_TRUE(state.shown.contains(PPDMark{u"VKBiDir"_s, u"ON"_s}));
    EXPECT_TRUE(state.shown.contains(PPDMark{u"VKColorMatching"_s, u"Natural"_s}));
    EXPECT_EQ(state.shown.size(), 17);
    EXPECT_TRUE(unlikeShown(state, {}).isEmpty());
}

TEST_F(SampleState, HasAPaperOfAnOwnSizeByItsSize)
{
    m_job.setPaper(*parseCustomPaper(u"Custom.100x150mm"_s));
    const QList<PPDMark> marks = settingState(m_job).marks;
    EXPECT_TRUE(marks.contains(PPDMark{u"PageSize"_s, u"Custom.283.46x425.2"_s}));
    EXPECT_EQ(changeSentence(m_job.ppd(),
                             changesBetween({{u"PageSize"_s, u"A4"_s}},
                                            {{u"PageSize"_s, u"Custom.283.46x425.2"_s}}, {})),
              u"Paper in the Printer is now 100 × 150 mm (was A4)."_s);
}

TEST_F(SampleState, IsKeptAsFarAsSomebodyHasSettledIt)
{
    SettingOrigins origins;
    const auto kept = [&] {
        QStringList names;
        for (const JobOption &option : keptSettings(m_job, origins).options)
            names += option.name + u'=' + option.value;
        return names;
    };
    const QString scaling = u"print-scaling=auto"_s; // every job says it
    EXPECT_EQ(kept(), QStringList{scaling});
    ASSERT_TRUE(
        makeSettings(m_job, {{u"VKMonoColor"_s, u"Mono"_s}, {u"VKInputSlot"_s, u"Tray1"_s}}));
    const SettingValues brighter{{u"VKBrightness"_s, u"3"_s}};
    origins.takePick(u"VKBrightness"_s, {}, brighter);
    const QStringList now = kept();
    EXPECT_EQ(now.mid(0, 3), (QStringList{u"VKMonoColor=Mono"_s, u"VKInputSlot=Tray1"_s, scaling}))
        << "a default, too, where it was picked";
    EXPECT_EQ(now.filter(u"T2T_"_s),
              QStringList{u"com.velkaro.print.PrintSettings.T2T_Brightness=0"_s});
}

TEST(ChangeWords, AreThePrintersOnOneLine)
{
    const PPDHandle ppd = openSample(u"velkaro-px-t900"_s);
    EXPECT_EQ(changeSentence(ppd.get(), {}), QString());
    EXPECT_EQ(changeSentence(ppd.get(), {{u"VKResolution"_s, u"PlainNormal"_s, u"Photo"_s},
                                         {u"VKBiDir"_s, QString(), u"OFF"_s}}),
              u"Print Quality is now Photo (was Normal); Bi-Directional Printing is now Off."_s);
    EXPECT_EQ(
        replacementSentence(ppd.get(), {u"VKMediaType"_s, u"Glossy"_s, u"PlainDuplex"_s}),
        u"Media Type: \"Plain Paper (Two-Sided)\" would be printed in place of \"Other Glossy Paper\"."_s);
}

TEST(ChangeWords, TellTextsApartThatThePrinterHasTwice)
{
    const PPDHandle ppd = PPDSource().option("Tray", {"A/Tray", "B/Tray", "C/Roll"}).open();
    EXPECT_EQ(changeSentence(ppd.get(), {{u"Tray"_s, u"A"_s, u"B"_s}}),
              u"Tray is now Tray [B] (was Tray [A])."_s);
    EXPECT_EQ(changeSentence(ppd.get(), {{u"Tray"_s, u"A"_s, u"C"_s}}),
              u"Tray is now Roll (was Tray [A])."_s);
}

} // namespace
