#include "tests/printsettings/PrintPanel.h"
#include "tests/printsettings/rules/MediaTable.h"

using namespace Qt::StringLiterals;

namespace {

class AllowedQuality : public PrintPanelTest, public testing::WithParamInterface<MediumRow>
{
protected:
    void SetUp() override { open(); }

    void expectAllowed(bool disc, bool duplex, const QString &qualities, const QString &replacement)
    {
        panel->setFlag(DiscPaper, disc);
        panel->setFlag(DuplexOn, duplex);
        panel->recordPendingValue(u"VKMediaType"_s, u"Somewhere"_s);
        panel->recordPendingValue(u"VKResolution"_s, u"Something"_s);
        EXPECT_EQ(panel->allowedQuality(GetParam().medium).join(u' '), qualities);
        if (replacement.isNull()) {
            EXPECT_EQ(panel->pending(), u"Somewhere/Something"_s);
            EXPECT_EQ(log(), QStringList());
            return;
        }
        const QString quality = replacement == "Plain"_L1 ? u"PlainNormal"_s : u"DiscNormal"_s;
        EXPECT_EQ(panel->pending(), replacement + u'/' + quality);
        EXPECT_EQ(log(),
                  QStringList({u"VKMediaType="_s + replacement, u"VKResolution="_s + quality}));
    }
};

TEST_P(AllowedQuality, ReplacesAMediumThatThePaperDoesNotTake)
{
    const MediumRow &row = GetParam();
    expectAllowed(false, false, row.oneSided, row.replacement);
    expectAllowed(false, true, row.twoSided, row.replacement);
    expectAllowed(true, false, row.onDisc, row.replacementOnDisc);
    expectAllowed(true, true, row.onDisc, row.replacementOnDisc);
}

TEST_P(AllowedQuality, HasADefaultByMediumAndPaper)
{
    const MediumRow &row = GetParam();
    EXPECT_EQ(panel->defaultQualityForMediaType(row.medium), row.defaultQuality);
    panel->paperName = u"A3.Fullbleed"_s;
    EXPECT_EQ(panel->defaultQualityForMediaType(row.medium), row.defaultOnBorderlessA3);
    panel->recordPendingValue(u"VKResolution"_s, u"Something"_s);
    panel->setDefaultQuality(row.medium);
    EXPECT_EQ(pending(u"VKResolution"_s), row.defaultOnBorderlessA3);
    EXPECT_EQ(log(), QStringList({u"VKResolution="_s + row.defaultOnBorderlessA3}));
}

INSTANTIATE_TEST_SUITE_P(EveryMedium, AllowedQuality, testing::ValuesIn(mediaTable()));

class AllowedQualityOnPaper : public PrintPanelTest
{};

TEST_F(AllowedQualityOnPaper, GlossyPaperOnADiscBecomesThePrintableDisc)
{
    open();
    panel->setFlag(DiscPaper, true);
    panel->recordPendingValue(u"VKMediaType"_s, u"Glossy"_s);
    EXPECT_EQ(panel->allowedQuality(u"Glossy"_s), QStringList({u"DiscNormal"_s, u"DiscSlow"_s}));
    EXPECT_EQ(panel->pending(), u"PrintableDisc/DiscNormal"_s);
}

TEST_F(AllowedQualityOnPaper, APrintableDiscWithoutADiscBecomesPlainPaperAtTheDefaultOfThePaper)
{
    open();
    panel->recordPendingValue(u"VKMediaType"_s, u"PrintableDisc"_s);
    panel->recordPendingValue(u"VKResolution"_s, u"DiscSlow"_s);
    panel->paperName = u"A3.Fullbleed"_s;
    panel->allowedQuality(u"PrintableDisc"_s);
    EXPECT_EQ(panel->pending(), u"Plain/Best"_s);
    panel->recordPendingValue(u"VKMediaType"_s, u"PrintableDisc"_s);
    panel->paperName = u"A4"_s;
    panel->allowedQuality(u"PrintableDisc"_s);
    EXPECT_EQ(panel->pending(), u"Plain/PlainNormal"_s);
}

} // namespace
