#include "tests/printsettings/AlertPanel.h"

using namespace Qt::StringLiterals;

namespace {

struct CustomSize
{
    QSizeF size;
    bool printed;
};

// The limits of this printer are 182 to 936 points by 254 to 1368 points.
TEST_F(Alerts, ACustomSizeIsRoundedToPointsAndHeldAgainstThePrintersLimits)
{
    open();
    for (const CustomSize &row :
         {CustomSize{{182, 254}, true}, CustomSize{{936, 1368}, true},
          CustomSize{{181.5, 253.5}, true}, CustomSize{{936.49, 1368.49}, true},
          CustomSize{{181, 254}, false}, CustomSize{{181.49, 254}, false},
          CustomSize{{182, 253}, false}, CustomSize{{936.5, 1368}, false},
          CustomSize{{936, 1369}, false}}) {
        usePaper(u"Custom.1x1"_s, row.size);
        if (!row.printed)
            session->alerts().expect();
        EXPECT_EQ(panel->checkCustomPaperSizeAlert(), row.printed)
            << row.size.width() << " x " << row.size.height();
        if (!row.printed)
            expectUnsupportedPaperAlert();
    }
}

TEST_F(Alerts, APaperThatIsNotCustomPassesWhateverItsSize)
{
    open();
    usePaper(u"A4"_s, {1, 1});
    EXPECT_TRUE(panel->checkCustomPaperSizeAlert());
    usePaper(QString(), {1, 1});
    EXPECT_TRUE(panel->checkCustomPaperSizeAlert());
}

TEST_F(Alerts, ACustomSizeThatCannotBeReadIsVetoedSilently)
{
    open();
    usePaper(u"Custom.1x1"_s);
    session->host()->format().paper.reset();
    EXPECT_FALSE(panel->checkCustomPaperSizeAlert());
    usePaper(u"Custom.1x1"_s);
    session->host()->setLacking({HostOperation::PageFormat});
    EXPECT_FALSE(panel->checkCustomPaperSizeAlert());
}

TEST_F(Alerts, ADialogWithoutATicketHasASizeThatNoPrinterTakes)
{
    open();
    usePaper(u"Custom.1x1"_s);
    session->host()->setLacking({HostOperation::PrintSettings});
    session->alerts().expect();
    EXPECT_FALSE(panel->checkCustomPaperSizeAlert());
    expectUnsupportedPaperAlert();
}

} // namespace
