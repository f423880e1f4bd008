#include "platform/imaging/CIImage.h"
#include "platform/toolkit/RadioMatrix.h"
#include "tests/colorsettings/PictureFixture.h"
#include "tests/support/Files.h"

#include <QtCore/QFile>

using namespace Qt::StringLiterals;

using PreviewTest = PictureTest;

// --- The reference picture -----------------------------------------------------------------------

TEST_F(PreviewTest, WithEnhancementOffShowsTheReferencePictureUnchanged)
{
    for (const char *key : kEffectTicketKeys)
        dialog.setTicket(key, u"20"_s);
    show(false);
    EXPECT_EQ(shown(), QColor(100, 150, 200));
    EXPECT_EQ(view().image().size(), QSize(4, 3));
}

TEST_F(PreviewTest, FollowsTheColourMatching)
{
    show(false);
    dialog.postNatural(true);
    EXPECT_EQ(shown(), QColor(200, 100, 50));
    auto &matrix = dialog.part<RadioMatrix>("colorMatchingMatrix");
    matrix.pick(matrix.rowOfRepresentedObject(u"None"_s));
    EXPECT_EQ(shown(), QColor(60, 120, 240));
    dialog.postNatural(false);
    EXPECT_EQ(shown(), QColor(100, 150, 200));
}

TEST_F(PreviewTest, ShowsThePlainPictureWhileTheApplicationMatchesColours)
{
    dialog.setTicket("AP_ColorMatchingMode", u"AP_ApplicationColorMatching"_s);
    show();
    EXPECT_EQ(shown(), QColor(60, 120, 240));
}

TEST_F(PreviewTest, AMatchingWithoutPictureKeepsTheFormerOne)
{
    show(false);
    ASSERT_TRUE(QFile::remove(pictures.path(u"Natural"_s)));
    dialog.postNatural(true);
    EXPECT_EQ(shown(), QColor(100, 150, 200));
}

TEST_F(PreviewTest, AnUnreadablePictureShowsAnEmptyImageUntilTheNextReadableOne)
{
    show(false);
    writeFile(pictures.path(u"Natural"_s), "no picture");
    dialog.postNatural(true);
    EXPECT_TRUE(view().image().isNull());
    EXPECT_EQ(dialog.panel->refImage(), nullptr);
    const int before = view().imagesPut();
    slide("redSlider", 5);
    EXPECT_EQ(view().imagesPut(), before) << "a change without a result draws nothing";
    dialog.postNatural(false);
    EXPECT_EQ(shown(), QColor(100, 150, 200));
}

TEST_F(PreviewTest, ThePictureIsDecodedOnceWhileItStaysTheSame)
{
    show(false);
    const auto image = dialog.panel->refImage();
    dialog.panel->updateUI();
    EXPECT_EQ(dialog.panel->refImage(), image);
}

TEST_F(PreviewTest, AnImageOfSomebodyElsesGivesWayToTheNamedOne)
{
    show(false);
    dialog.panel->setRefImage(nullptr);
    dialog.panel->updateUI();
    EXPECT_EQ(shown(), QColor(100, 150, 200));
}

TEST_F(PreviewTest, WithoutAPendingMatchingNothingIsDrawn)
{
    show(false);
    const int before = view().imagesPut();
    dialog.panel->setOutputBin({});
    dialog.panel->checkUIConstraints();
    EXPECT_EQ(view().imagesPut(), before);
}

TEST_F(PreviewTest, IsNotDrawnOffScreenInColour)
{
    show(false);
    dialog.panel->shouldHide();
    const int before = view().imagesPut();
    dialog.postNatural(true);
    EXPECT_EQ(view().imagesPut(), before);
    dialog.panel->willShow();
    EXPECT_EQ(shown(), QColor(200, 100, 50));
}

// --- One value at a time -------------------------------------------------------------------------

namespace {

struct OneValue
{
    const char *name;
    const char *slider;
    double value;
    QRgb shown; // of (100, 150, 200): decoded, changed in linear light, encoded
};

const OneValue kOneValue[] = {
    {"BrightnessUp", "brightnessSlider", 20, qRgb(131, 171, 215)},
    {"BrightnessDown", "brightnessSlider", -20, qRgb(46, 125, 184)},
    {"BrightnessCut", "brightnessSlider", 7.9, qRgb(112, 158, 205)},
    {"ContrastUp", "contrastSlider", 20, qRgb(80, 144, 201)},
    {"ContrastDown", "contrastSlider", -20, qRgb(116, 155, 198)},
    {"RedUp", "redSlider", 20, qRgb(124, 150, 200)},
    {"RedDown", "redSlider", -20, qRgb(66, 150, 200)},
    {"RedCut", "redSlider", 7.9, qRgb(109, 150, 200)},
    {"GreenUp", "greenSlider", 20, qRgb(100, 184, 200)},
    {"GreenCut", "greenSlider", 7.9, qRgb(100, 163, 200)},
    {"BlueDown", "blueSlider", -20, qRgb(100, 150, 136)},
    {"NoChange", "blueSlider", 0.9, qRgb(100, 150, 200)},
};

class OneValueTest : public PictureTest, public testing::WithParamInterface<OneValue>
{};

} // namespace

TEST_P(OneValueTest, ChangesThePictureAsTheSliderMoves)
{
    show();
    slide(GetParam().slider, GetParam().value);
    EXPECT_EQ(shown(), QColor::fromRgb(GetParam().shown));
}

TEST_P(OneValueTest, AndTheWholePictureComesToTheSame)
{
    show();
    slide(GetParam().slider, GetParam().value);
    dialog.panel->redrawEffectImage();
    EXPECT_EQ(shown(), QColor::fromRgb(GetParam().shown));
}

INSTANTIATE_TEST_SUITE_P(Values, OneValueTest, testing::ValuesIn(kOneValue),
                         [](const auto &test) { return std::string(test.param.name); });

// --- The order of the filters --------------------------------------------------------------------

TEST_F(PreviewTest, TheWholePictureHasBrightnessAndContrastFirstAndAChangedGainHasThemLast)
{
    dialog.setTicket(kEffectTicketKeys[0], u"20"_s);
    dialog.setTicket(kEffectTicketKeys[1], u"20"_s);
    show();
    EXPECT_EQ(shown(), QColor(122, 168, 218));
    slide("redSlider", 20);
    EXPECT_EQ(shown(), QColor(143, 168, 218)) << "the gain first";
    dialog.panel->redrawEffectImage();
    EXPECT_EQ(shown(), QColor(150, 168, 218)) << "the gain last";
}

TEST_F(PreviewTest, AChangedBrightnessHasTheGainLastLikeTheWholePicture)
{
    dialog.setTicket(kEffectTicketKeys[2], u"20"_s);
    show();
    EXPECT_EQ(shown(), QColor(124, 150, 200));
    slide("brightnessSlider", 20);
    EXPECT_EQ(shown(), QColor(161, 171, 215));
    dialog.panel->redrawEffectImage();
    EXPECT_EQ(shown(), QColor(161, 171, 215));
}

TEST_F(PreviewTest, NothingIsClampedBetweenTheFilters)
{
    pictures.write(u"Vivid"_s, qRgb(245, 245, 245));
    dialog.setTicket(kEffectTicketKeys[1], u"20"_s);
    dialog.setTicket(kEffectTicketKeys[3], u"-20"_s);
    show();
    slide("brightnessSlider", 20);
    // Clamped to white before the gain, the green would come to 175.
    EXPECT_EQ(shown(), QColor(255, 181, 255));
}

TEST_F(PreviewTest, TheSecondStepOfAChangeDoesNotAskTheSwitch)
{
    dialog.setTicket(kEffectTicketKeys[2], u"20"_s);
    show(false);
    EXPECT_EQ(shown(), QColor(100, 150, 200));
    slide("brightnessSlider", 20);
    EXPECT_EQ(shown(), QColor(124, 150, 200)) << "no brightness, but the gain";
    slide("redSlider", 10);
    EXPECT_EQ(shown(), QColor(131, 171, 215)) << "no gain, but the brightness";
}

TEST_F(PreviewTest, ASingleChangeSetsOnlyItsOwnParameter)
{
    show();
    dialog.panel->restoreEffectValues();
    // Behind the sliders' back: only the value that is moved is taken up.
    dialog.setTicket(kEffectTicketKeys[2], u"20"_s);
    dialog.panel->restoreEffectValues();
    slide("brightnessSlider", 20);
    EXPECT_EQ(shown(), QColor(131, 171, 215));
    dialog.panel->redrawEffectImage();
    EXPECT_EQ(shown(), QColor(161, 171, 215));
}

TEST_F(PreviewTest, ANegativeCodeTakesUpBothAndWritesNothingBack)
{
    show();
    const auto image = dialog.panel->refImage();
    EXPECT_NE(dialog.panel->applyColorControlFilter(image, -1), image);
    EXPECT_EQ(dialog.content("VKBrightness").typeId(), QMetaType::LongLong);
    EXPECT_NE(dialog.panel->applyColorControlFilter(image, 0), image);
    EXPECT_EQ(dialog.content("VKBrightness").typeId(), QMetaType::Float);
    EXPECT_EQ(dialog.content("VKContrast").typeId(), QMetaType::LongLong);
    EXPECT_EQ(dialog.panel->applyColorControlFilter(nullptr, -1), nullptr);
}

// --- Mono ----------------------------------------------------------------------------------------

TEST_F(PreviewTest, MonoIsGreyWithEnhancementOff)
{
    dialog.setTicket("VKMonoColor", u"Mono"_s);
    show(false);
    EXPECT_TRUE(showsGrey(146));
}

TEST_F(PreviewTest, MonoHasBrightnessAndContrastAndIgnoresTheGains)
{
    dialog.setTicket("VKMonoColor", u"Mono"_s);
    for (const int gain : {2, 3, 4})
        dialog.setTicket(kEffectTicketKeys[gain], u"20"_s);
    show();
    EXPECT_TRUE(showsGrey(146));
    slide("brightnessSlider", 20);
    slide("contrastSlider", -20);
    EXPECT_TRUE(showsGrey(170));
}

TEST_F(PreviewTest, AChangedGainInMonoIsTheGreyPictureWithBrightnessAndContrastOnTop)
{
    dialog.setTicket("VKMonoColor", u"Mono"_s);
    dialog.setTicket(kEffectTicketKeys[0], u"20"_s);
    dialog.setTicket(kEffectTicketKeys[1], u"20"_s);
    show();
    for (const char *slider : {"redSlider", "greenSlider", "blueSlider"}) {
        slide(slider, -20);
        EXPECT_TRUE(showsGrey(164)) << slider;
    }
}

TEST_F(PreviewTest, FollowsTheColourModeOfTheOtherPanel)
{
    show(false);
    dialog.postMono(true);
    EXPECT_TRUE(showsGrey(146));
    dialog.postMono(false);
    EXPECT_EQ(shown(), QColor(100, 150, 200));
}

// --- Drawing -------------------------------------------------------------------------------------

TEST_F(PreviewTest, IsDrawnOverItsOwnMemory)
{
    show();
    const uchar *pixels = view().image().constBits();
    slide("redSlider", 3);
    slide("brightnessSlider", -7);
    dialog.panel->redrawEffectImage();
    EXPECT_EQ(view().image().constBits(), pixels);
}

TEST_F(PreviewTest, APictureThatSomebodyKeptIsNotDrawnOver)
{
    show();
    const QImage kept = view().image();
    slide("redSlider", 20);
    EXPECT_EQ(kept.pixelColor(0, 0), QColor(100, 150, 200));
    EXPECT_EQ(shown(), QColor(124, 150, 200));
}

TEST_F(PreviewTest, APictureOfAnotherSizeIsShownWhole)
{
    pictures.write(u"Natural"_s, qRgb(9, 8, 7), QSize(300, 2));
    show(false);
    dialog.postNatural(true);
    EXPECT_EQ(view().image().size(), QSize(300, 2));
    EXPECT_EQ(shown(), QColor(9, 8, 7));
}

TEST_F(PreviewTest, TheBundlesOwnPicturesAreThere)
{
    Bundle::setMainBundle(Bundle::open(builtBundle()));
    ColorDialog real;
    real.show();
    for (const QString &name : {u"Natural"_s, u"Vivid"_s, u"None"_s}) {
        real.panel->setRefImage(nullptr);
        real.panel->setRefImageWithName(name);
        EXPECT_NE(real.panel->refImage(), nullptr) << name.toStdString();
    }
    EXPECT_EQ(real.panel->inspectedPicture()->image().size(), QSize(192, 144));
}
