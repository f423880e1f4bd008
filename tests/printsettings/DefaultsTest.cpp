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
