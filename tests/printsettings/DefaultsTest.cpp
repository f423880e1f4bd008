#include "tests/printsettings/PrintPanel.h"

using namespace Qt::StringLiterals;

namespace {

class Defaults : public PrintPanelTest
{};

TEST_F(Defaults, AreOfferedWhereNothingIsMarked)
{
    open();
    unmark(session->ppd(), "VKReverse");
    panel->recordPendingValue(u"VKReverse"_s, u"ON"_s);
    panel->setDefaults();
    EXPECT_EQ(pending(u"VKReverse"_s), u"OFF"_s);
    EXPECT_EQ(log(), QStringList({u"VKReverse=OFF"_s}));
}

TEST_F(Defaults, ThatTheHostRefusesAreNotKept)
{
    open();
    session->host()->setRefused({u"VKReverse"_s});
    unmark(session->ppd(), "VKReverse");
    panel->recordPendingValue(u"VKReverse"_s, u"ON"_s);
    panel->setDefaults();
    EXPECT_EQ(pending(u"VKReverse"_s), u"ON"_s);
    EXPECT_EQ(log(), QStringList({u"VKReverse=OFF refused"_s}));
}

TEST_F(Defaults, ThatThePPDDoesNotTellAreNotKept)
{
    usePrinter(PPDSource().optionWithoutDefault("VKReverse", {"OFF", "ON"}).open());
    open();
    panel->setOutputBin({});
    panel->setDefaults();
    EXPECT_EQ(panel->outputBin(), QVariantMap());
    EXPECT_EQ(log(), QStringList({u"VKReverse= refused"_s}));
    panel->recordPendingValue(u"VKReverse"_s, u""_s);
    panel->setDefaults();
    EXPECT_EQ(log(), QStringList());
}

// The rules know no medium without a name and replace it; of the others a read-back commits what
// their controls show.
TEST_F(Defaults, ThatThePPDDoesNotTellAreWhatThePanelShowsAfterTheFirstPick)
{
    usePrinter(openText(sampleWithoutDefaults(
        u"velkaro-px-t900"_s, {"VKMediaType", "VKResolution", "VKBiDir", "VKInputSlot"})));
    show();
    EXPECT_EQ(popup(u"mediaTypePopup"_s)->selectedObject(), u"Plain"_s);
    EXPECT_EQ(popup(u"resolutionPopup"_s)->selectedObject(), u"PlainNormal"_s);
    EXPECT_EQ(panel->pending(), u"Plain/PlainNormal"_s);
    EXPECT_EQ(popup(u"paperFeedPopup"_s)->selectedObject(), u"Tray1"_s);
    EXPECT_EQ(stateOf(box(u"biDirButton"_s)), u"off"_s);
    EXPECT_EQ(pending(u"VKInputSlot"_s) + pending(u"VKBiDir"_s), QString());
    clickBox(box(u"reverseButton"_s), true);
    EXPECT_EQ(log(), QStringList({u"VKReverse=ON"_s, u"VKInputSlot=Tray1"_s, u"VKBiDir=OFF"_s}));
}

TEST_F(Defaults, LeaveAnotherMarkedChoiceAlone)
{
    open();
    session->mark(u"VKReverse"_s, u"ON"_s);
    panel->recordPendingValue(u"VKReverse"_s, u"ON"_s);
    panel->setDefaults();
    EXPECT_EQ(pending(u"VKReverse"_s), u"ON"_s);
    EXPECT_EQ(log(), QStringList());
}

TEST_F(Defaults, ThatAreMarkedLeaveAnEnvelopeItsThicknessAndDirection)
{
    usePrinter(PPDSource()
                   .option("VKColorPaperThick", {"Regular", "Thick", "Env"})
                   .option("VKBiDir", {"OFF", "ON"})
                   .option("VKReverse", {"OFF", "ON"})
                   .open());
    open();
    for (const auto &[keyword, value] :
         {std::pair(u"VKColorPaperThick"_s, u"Thick"_s), std::pair(u"VKBiDir"_s, u"ON"_s),
          std::pair(u"VKReverse"_s, u"ON"_s)})
        panel->recordPendingValue(keyword, value);
    panel->setDefaults();
    EXPECT_EQ(log(), QStringList());
    panel->setFlag(BiDirLeftAlone, true);
    panel->setDefaults();
    EXPECT_EQ(log(), QStringList({u"VKBiDir=OFF"_s}));
    panel->setFlag(EnvelopePaper, true);
    panel->setDefaults();
    EXPECT_EQ(log(), QStringList({u"VKColorPaperThick=Env"_s}));
    EXPECT_EQ(pending(u"VKReverse"_s), u"ON"_s);
}

TEST_F(Defaults, OfKeywordsThatThePPDLacksAreNone)
{
    usePrinter(PPDSource().option("VKBiDir", {"OFF", "ON"}).open());
    open();
    panel->setOutputBin({});
    panel->setDefaults();
    EXPECT_EQ(panel->outputBin(), QVariantMap());
    EXPECT_EQ(log(), QStringList());
}

} // namespace
