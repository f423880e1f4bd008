#include "tests/printsettings/PrintPanel.h"

using namespace Qt::StringLiterals;

namespace {

class TwoSided : public PrintPanelTest
{};

TEST_F(TwoSided, IsOnWhereAnotherChoiceThanTheDefaultIsMarked)
{
    open();
    for (const auto &[choice, on] : {std::pair("None", false), std::pair("DuplexNoTumble", true),
                                     std::pair("DuplexTumble", true), std::pair("None", false)}) {
        ppdMarkOption(session->ppd(), "Duplex", choice);
        panel->checkDuplex();
        EXPECT_EQ(panel->hasFlag(DuplexOn), on) << choice;
    }
}

// Nothing tells the panel which choice is the one-sided one.
TEST_F(TwoSided, IsOnWhateverIsMarkedWhereThePPDTellsNoDefault)
{
    usePrinter(openText(sampleWithoutDefaults(u"velkaro-px-t900"_s, {"Duplex"})));
    open();
    panel->checkDuplex();
    EXPECT_TRUE(panel->hasFlag(DuplexOn));
    session->mark(u"Duplex"_s, u"None"_s);
    EXPECT_TRUE(panel->hasFlag(DuplexOn));
}

TEST_F(TwoSided, IsNeverOnForAPrinterWithoutTheTwoSidedMedium)
{
    useSample(u"velkaro-px-330c"_s);
    open();
    ppdMarkOption(session->ppd(), "Duplex", "DuplexNoTumble");
    panel->setFlag(DuplexOn, true);
    panel->checkDuplex();
    EXPECT_FALSE(panel->hasFlag(DuplexOn));
}

TEST_F(TwoSided, IsNeverOnForAPrinterWithoutDuplex)
{
    usePrinter(PPDSource().option("VKMediaType", {"Plain", "PlainDuplex"}).open());
    open();
    panel->setFlag(DuplexOn, true);
    panel->checkDuplex();
    EXPECT_FALSE(panel->hasFlag(DuplexOn));
}

TEST_F(TwoSided, TurnedOnTakesThePlaceOfPlainPaper)
{
    open();
    panel->recordPendingValue(u"VKResolution"_s, u"High"_s);
    session->mark(u"Duplex"_s, u"DuplexNoTumble"_s);
    EXPECT_EQ(log(), QStringList({u"VKMediaType=PlainDuplex"_s, u"VKResolution=PlainNormal"_s}));
    EXPECT_EQ(panel->pending(), u"PlainDuplex/PlainNormal"_s);
}

TEST_F(TwoSided, TurnedOnShowsPlainPaperWithoutItsHighQuality)
{
    show();
    session->mark(u"Duplex"_s, u"DuplexNoTumble"_s);
    EXPECT_EQ(log(), QStringList({u"VKMediaType=PlainDuplex"_s, u"mono NO"_s}));
    EXPECT_EQ(popup(u"mediaTypePopup"_s)->selectedObject(), u"Plain"_s);
    EXPECT_EQ(itemsOf(popup(u"resolutionPopup"_s)), u"PlainFast PlainNormal* Best"_s);
    EXPECT_EQ(panel->pending(), u"PlainDuplex/PlainNormal"_s);
}

TEST_F(TwoSided, TurnedOnChangesNothingForAnotherMedium)
{
    show();
    pickChoice(panel->outlet(u"mediaTypePopup"_s), u"Glossy"_s);
    log();
    session->mark(u"Duplex"_s, u"DuplexNoTumble"_s);
    EXPECT_EQ(log(), QStringList());
    EXPECT_EQ(panel->pending(), u"Glossy/Photo"_s);
    // The next read-back commits the two-sided medium whatever the pop-up shows.
    panel->saveAllValues();
    EXPECT_EQ(log(), QStringList({u"VKMediaType=PlainDuplex"_s}));
    EXPECT_EQ(popup(u"mediaTypePopup"_s)->selectedObject(), u"Glossy"_s);
}

TEST_F(TwoSided, StayingOnDoesNothing)
{
    show();
    session->mark(u"Duplex"_s, u"DuplexNoTumble"_s);
    log();
    session->mark(u"Duplex"_s, u"DuplexTumble"_s);
    EXPECT_EQ(log(), QStringList());
}

TEST_F(TwoSided, TurnedOffRefreshesThePanelAndLeavesTheMediumToTheSaving)
{
    show();
    session->mark(u"Duplex"_s, u"DuplexNoTumble"_s);
    log();
    session->mark(u"Duplex"_s, u"None"_s);
    EXPECT_EQ(panel->pending(), u"PlainDuplex/PlainNormal"_s);
    EXPECT_EQ(itemsOf(popup(u"resolutionPopup"_s)), u"PlainFast PlainNormal* High Best"_s);
    EXPECT_EQ(log(), QStringList({u"mono NO"_s}));
    session->mark(u"Duplex"_s, u"None"_s);
    EXPECT_EQ(log(), QStringList({u"mono NO"_s}));
    panel->saveValuesAndReturnError(nullptr);
    EXPECT_EQ(panel->pending(), u"Plain/PlainNormal"_s);
}

TEST_F(TwoSided, TurnedOffBeforeTheViewDoesNothing)
{
    open();
    session->mark(u"Duplex"_s, u"DuplexNoTumble"_s);
    log();
    session->mark(u"Duplex"_s, u"None"_s);
    EXPECT_EQ(log(), QStringList());
    EXPECT_EQ(panel->pending(), u"PlainDuplex/PlainNormal"_s);
}

} // namespace
