#include "tests/printsettings/PrintPanel.h"

using namespace Qt::StringLiterals;

namespace {

class MediaTypeRules : public PrintPanelTest
{};

TEST_F(MediaTypeRules, TheColorModeIsPostedAsMonoOnlyForMono)
{
    open();
    for (const auto &[value, mono] : {std::pair(u"Mono"_s, true), std::pair(u"Color"_s, false),
                                      std::pair(u"mono"_s, false), std::pair(u""_s, false)}) {
        panel->setFlag(MonoColorMode, !mono);
        panel->recordPendingValue(u"VKMonoColor"_s, value);
        panel->canSelectColorMode();
        EXPECT_EQ(log(), QStringList({mono ? u"mono YES"_s : u"mono NO"_s})) << qPrintable(value);
        EXPECT_EQ(panel->hasFlag(MonoColorMode), mono);
    }
    panel->setOutputBin({});
    panel->canSelectColorMode();
    EXPECT_EQ(log(), QStringList({u"mono NO"_s}));
}

TEST_F(MediaTypeRules, JpegPrintingIsAlwaysAllowed)
{
    open();
    panel->setFlag(JpegUnavailable, true);
    panel->canSelectJpegPrint();
    EXPECT_FALSE(panel->hasFlag(JpegUnavailable));
}

TEST_F(MediaTypeRules, ThePaperFeedDisablesTransparenciesOnBorderlessPaperAlone)
{
    show();
    PopUpButton *media = popup(u"mediaTypePopup"_s);
    const int transparencies = media->indexOfRepresentedObject(u"Transparencies"_s);
    ASSERT_TRUE(media->selectObject(u"Transparencies"_s));
    panel->setFlag(TransparenciesMedium, true);
    panel->checkStateWithPaperFeed();
    EXPECT_TRUE(media->isItemEnabled(transparencies));
    EXPECT_TRUE(panel->hasFlag(TransparenciesMedium));
    panel->setFlag(BorderlessPaper, true);
    panel->checkStateWithPaperFeed();
    EXPECT_FALSE(media->isItemEnabled(transparencies));
    EXPECT_FALSE(panel->hasFlag(TransparenciesMedium));
    EXPECT_EQ(media->selectedObject(), u"Plain"_s);
}

struct CustomEnvelope
{
    QString paperName;
    QString thickness;
    bool bitsBefore;
    bool answer;
    bool bitsAfter;
};

TEST_F(MediaTypeRules, ACustomPaperIsAnEnvelopeByItsThickness)
{
    open();
    for (const CustomEnvelope &row : {
             CustomEnvelope{u"Custom.100x200"_s, u"Env"_s, false, true, true},
             CustomEnvelope{u"Custom.100x200"_s, u"Regular"_s, true, false, false},
             CustomEnvelope{u"Custom.100x200"_s, QString(), true, false, false},
             CustomEnvelope{u"EnvDL"_s, u"Env"_s, false, false, false},
             CustomEnvelope{u"EnvDL"_s, u"Env"_s, true, false, true},
             CustomEnvelope{u"custom"_s, u"Env"_s, true, false, true},
             CustomEnvelope{QString(), u"Env"_s, true, false, true},
         }) {
        panel->paperName = row.paperName;
        panel->recordPendingValue(u"VKColorPaperThick"_s, row.thickness);
        panel->setFlag(EnvelopePaper, row.bitsBefore);
        panel->setFlag(BiDirLeftAlone, row.bitsBefore);
        EXPECT_EQ(panel->paperSizeIsCustomEnv(), row.answer) << qPrintable(row.paperName);
        EXPECT_EQ(panel->hasFlag(EnvelopePaper), row.bitsAfter) << qPrintable(row.paperName);
        EXPECT_EQ(panel->hasFlag(BiDirLeftAlone), row.bitsAfter) << qPrintable(row.paperName);
    }
}

struct LetterRule
{
    int modelNumber;
    QString paperName;
    QString quality; ///< after
};

TEST_F(MediaTypeRules, BorderlessLetterResetsTheQualityOnModelTwelve)
{
    for (const LetterRule &row :
         {LetterRule{12, u"Letter.Fullbleed"_s, u"PlainNormal"_s},
          LetterRule{12, u"VkLetter_B"_s, u"PlainNormal"_s}, LetterRule{12, u"Letter"_s, u"Best"_s},
          LetterRule{12, u"A4.Fullbleed"_s, u"Best"_s},
          LetterRule{11, u"Letter.Fullbleed"_s, u"Best"_s},
          LetterRule{13, u"Letter.Fullbleed"_s, u"Best"_s}}) {
        usePrinter(PPDSource()
                       .modelNumber(row.modelNumber)
                       .option("VKResolution", {"PlainNormal", "Best"})
                       .open());
        open();
        panel->recordPendingValue(u"VKResolution"_s, u"Best"_s);
        panel->paperName = row.paperName;
        panel->changeResolutionLetterB();
        EXPECT_EQ(pending(u"VKResolution"_s), row.quality)
            << row.modelNumber << qPrintable(row.paperName);
    }
}

} // namespace
