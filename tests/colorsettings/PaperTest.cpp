#include "platform/foundation/NotificationCenter.h"
#include "platform/toolkit/RadioMatrix.h"
#include "tests/colorsettings/ColorPanelFixture.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto kMappedPaper = "com.apple.print.PageToPaperMappingMediaName";
}

using PaperTest = ColorPanelTest;

TEST_F(PaperTest, AJobScaledToADiscTakesNaturalMatching)
{
    ColorDialog dialog;
    dialog.show();
    dialog.setTicket(kMappedPaper, u"120x120mm"_s);
    dialog.postPaper();
    EXPECT_EQ(dialog.calls, QStringList{u"VKColorMatching=Natural"_s});
    EXPECT_EQ(dialog.pending("VKColorMatching"), QVariant(u"Natural"_s));
    EXPECT_EQ(dialog.marked("VKColorMatching"), u"Natural"_s);
    EXPECT_EQ(dialog.part<RadioMatrix>("colorMatchingMatrix").selectedObject(), u"Natural"_s);
}

TEST_F(PaperTest, NaturalIsPendingEvenWhenTheHostRefusesIt)
{
    ColorDialog dialog;
    dialog.create();
    dialog.host->setRefused({u"VKColorMatching"_s});
    dialog.setTicket(kMappedPaper, u"120x120mm"_s);
    dialog.postPaper();
    EXPECT_EQ(dialog.calls, QStringList{u"VKColorMatching=Natural refused"_s});
    EXPECT_EQ(dialog.pending("VKColorMatching"), QVariant(u"Natural"_s));
    EXPECT_EQ(dialog.marked("VKColorMatching"), u"Vivid"_s);
}

TEST_F(PaperTest, TheHostIsAskedAgainThoughNaturalIsPendingAlready)
{
    ColorDialog dialog;
    dialog.create();
    dialog.setTicket(kMappedPaper, u"120x120mm"_s);
    dialog.postPaper();
    dialog.postPaper();
    EXPECT_EQ(dialog.calls,
              QStringList({u"VKColorMatching=Natural"_s, u"VKColorMatching=Natural"_s}));
}

TEST_F(PaperTest, OtherPapersLeaveTheMatchingAlone)
{
    const QVariant papers[] = {u"A4"_s, u"120x120mm_B"_s, u"120X120MM"_s, u""_s, 120, QVariant()};
    ColorDialog dialog;
    dialog.show();
    for (const QVariant &paper : papers) {
        dialog.setTicket(kMappedPaper, paper);
        dialog.postPaper();
    }
    EXPECT_EQ(dialog.calls, QStringList());
    EXPECT_EQ(dialog.pending("VKColorMatching"), QVariant(u"Vivid"_s));
}

TEST_F(PaperTest, ThePageSetupOfAnyObjectIsHeard)
{
    ColorDialog dialog;
    dialog.create();
    dialog.setTicket(kMappedPaper, u"120x120mm"_s);
    int anybody = 0;
    NotificationCenter::defaultCenter().post(u"PMPrintDestinationPaperDidChangeNotification"_s,
                                             &anybody);
    EXPECT_EQ(dialog.calls, QStringList{u"VKColorMatching=Natural"_s});
}
