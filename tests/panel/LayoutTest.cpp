#include "tests/panel/PanelFixture.h"

#include "platform/foundation/NotificationCenter.h"
#include "platform/toolkit/ImageView.h"
#include "platform/toolkit/KeyWindow.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <optional>

using namespace Qt::StringLiterals;

namespace {

class LayoutTest : public PanelFixture
{
protected:
    void postTrackingAreas()
    {
        NotificationCenter::defaultCenter().post(
            QLatin1String(kViewDidUpdateTrackingAreasNotification), panel->panelView());
    }

    QImage picture(Qt::GlobalColor color) const
    {
        QImage image(4, 4, QImage::Format_RGB32);
        image.fill(color);
        return image;
    }

    QWidget window;
};

TEST_F(LayoutTest, LoadsTheViewOnce)
{
    createPanel();
    EXPECT_EQ(panel->loadedView(), nullptr);
    EXPECT_EQ(panel->effectContent, nullptr);
    QWidget *view = panel->panelView();
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(view->objectName(), u"panelView"_s);
    EXPECT_EQ(panel->panelView(), view);
    EXPECT_NE(panel->effectContent, nullptr);
    EXPECT_NE(panel->optionButton, nullptr);
}

TEST_F(LayoutTest, HasNoViewWhereTheResourceConnectsNone)
{
    writeBundleFile(u"Resources/TestView.ui"_s,
                    "<ui version=\"4.0\"><widget class=\"QWidget\" name=\"Other\"/></ui>");
    createPanel();
    EXPECT_EQ(panel->panelView(), nullptr);
    EXPECT_EQ(panel->panelView(), nullptr);
}

TEST_F(LayoutTest, HasNoViewWhereTheResourceIsMissingOrBroken)
{
    createPanel();
    panel->setThePDEName(u"NoSuchView"_s);
    EXPECT_EQ(panel->panelView(), nullptr);
    writeBundleFile(u"Resources/Broken.ui"_s, "<ui");
    panel->setThePDEName(u"Broken"_s);
    EXPECT_EQ(panel->panelView(), nullptr);
}

struct ResizeCase
{
    const char *behaviour;
    std::optional<int> windowHeight;
    bool shown;
    bool hostCanBeTold;
    int newHeight;
    int heightAfter;
    int toldAtOnce;
    int toldLater;
};

class Resize : public LayoutTest, public testing::WithParamInterface<ResizeCase>
{};

// The view is 160 points high before.
const ResizeCase kResizeCases[] = {
    {"TallWindowIsToldAtOnce", 500, true, true, 300, 300, 1, 0},
    {"JustTallerThanTheMarginIsToldAtOnce", 397, true, true, 300, 300, 1, 0},
    {"ExactlyTheMarginIsToldLater", 396, true, true, 300, 300, 0, 1},
    {"SmallWindowIsToldLater", 200, true, true, 300, 300, 0, 1},
    {"HiddenPanelTellsNobody", 500, false, true, 300, 300, 0, 0},
    {"NoKeyWindowTellsNobody", std::nullopt, true, true, 300, 300, 0, 0},
    {"HostThatCannotBeToldKeepsItsSize", 500, true, false, 300, 160, 0, 0},
    {"ShrinkingIsToldToo", 300, true, true, 130, 130, 1, 0},
};

TEST_P(Resize, TellsTheHostWhenItsWindowIsTallEnough)
{
    if (!GetParam().hostCanBeTold)
        host->setLacking({HostOperation::PanelViewDidResize});
    showPanel();
    panel->panelView()->setFixedSize(560, 160);
    if (!GetParam().shown)
        panel->shouldHide();
    if (GetParam().windowHeight) {
        window.resize(560, *GetParam().windowHeight);
        setKeyWindow(&window);
    }
    panel->setViewFrameSize(QSizeF(560, GetParam().newHeight));
    EXPECT_EQ(panel->panelView()->size(), QSize(560, GetParam().heightAfter));
    EXPECT_EQ(resizes, GetParam().toldAtOnce);
    postTrackingAreas();
    EXPECT_EQ(resizes, GetParam().toldAtOnce + GetParam().toldLater);
    postTrackingAreas();
    EXPECT_EQ(resizes, GetParam().toldAtOnce + GetParam().toldLater) << "it is told once";
}

INSTANTIATE_TEST_SUITE_P(Cases, Resize, testing::ValuesIn(kResizeCases), CaseName());

TEST_F(LayoutTest, WaitsForTheTrackingAreasOfItsOwnView)
{
    showPanel();
    window.resize(560, 200);
    setKeyWindow(&window);
    panel->setViewFrameSize(QSizeF(560, 300));
    NotificationCenter::defaultCenter().post(QLatin1String(kViewDidUpdateTrackingAreasNotification),
                                             &window);
    EXPECT_EQ(resizes, 0);
    postTrackingAreas();
    EXPECT_EQ(resizes, 1);
}

TEST_F(LayoutTest, EndsOnlyThatRegistrationWhenTheDialogHasExpanded)
{
    setKeyWindow(&window);
    showPanel();
    window.resize(560, 200);
    NotificationCenter &center = NotificationCenter::defaultCenter();
    const int before = center.registrationCount(panel.get());
    panel->setViewFrameSize(QSizeF(560, 300));
    panel->setViewFrameSize(QSizeF(560, 310));
    EXPECT_EQ(center.registrationCount(panel.get()), before + 2);
    postTrackingAreas();
    EXPECT_EQ(center.registrationCount(panel.get()), before);
    EXPECT_EQ(resizes, 1);
}

TEST_F(LayoutTest, MovesPartsUpAndLeavesTheirSize)
{
    showPanel();
    panel->freePart->setGeometry(10, 200, 50, 20);
    panel->imageView->setGeometry(70, 210, 50, 30);
    panel->adjustUIPosition(30, {panel->freePart, nullptr, panel->imageView});
    EXPECT_EQ(panel->freePart->geometry(), QRect(10, 170, 50, 20));
    EXPECT_EQ(panel->imageView->geometry(), QRect(70, 180, 50, 30));
    panel->adjustUIPosition(-30, {panel->freePart});
    EXPECT_EQ(panel->freePart->geometry(), QRect(10, 200, 50, 20));
}

TEST_F(LayoutTest, ShowsAPictureOfTheBundle)
{
    showPanel();
    writeBundleFile(u"Resources/Vivid.tiff"_s, "");
    ASSERT_TRUE(picture(Qt::red).save(bundleFile(u"Resources/Vivid.tiff"_s), "PNG"));
    panel->imageView->hide();
    panel->changeImage(u"Vivid"_s, panel->imageView);
    EXPECT_EQ(panel->imageView->imageName(), u"Vivid"_s);
    EXPECT_EQ(panel->imageView->image().pixelColor(0, 0), QColor(Qt::red));
    EXPECT_FALSE(panel->imageView->isHidden());
}

TEST_F(LayoutTest, LoadsAPictureOnlyWhenAnotherIsAskedFor)
{
    showPanel();
    writeBundleFile(u"Resources/Vivid.tiff"_s, "");
    ASSERT_TRUE(picture(Qt::red).save(bundleFile(u"Resources/Vivid.tiff"_s), "PNG"));
    panel->changeImage(u"Vivid"_s, panel->imageView);
    panel->changeImage(u"Vivid"_s, panel->imageView);
    EXPECT_EQ(panel->imageView->imagesPut(), 1);
}

TEST_F(LayoutTest, TakesTheOtherTypeOfPictureWhereTheFirstIsMissing)
{
    showPanel();
    writeBundleFile(u"Resources/Vivid.pdf"_s, "");
    ASSERT_TRUE(picture(Qt::blue).save(bundleFile(u"Resources/Vivid.pdf"_s), "PNG"));
    panel->changeImage(u"Vivid"_s, panel->imageView);
    EXPECT_EQ(panel->imageView->image().pixelColor(0, 0), QColor(Qt::blue));
    writeBundleFile(u"Resources/Other.tiff"_s, "");
    writeBundleFile(u"Resources/Other.pdf"_s, "");
    ASSERT_TRUE(picture(Qt::red).save(bundleFile(u"Resources/Other.tiff"_s), "PNG"));
    ASSERT_TRUE(picture(Qt::blue).save(bundleFile(u"Resources/Other.pdf"_s), "PNG"));
    panel->changeImage(u"Other"_s, panel->imageView);
    EXPECT_EQ(panel->imageView->image().pixelColor(0, 0), QColor(Qt::red));
}

TEST_F(LayoutTest, HidesTheViewOfAPictureThatIsMissing)
{
    showPanel();
    panel->imageView->setImage(picture(Qt::red));
    panel->imageView->setImageName(u"Vivid"_s);
    panel->changeImage(u"Missing"_s, panel->imageView);
    EXPECT_TRUE(panel->imageView->isHidden());
    EXPECT_EQ(panel->imageView->imageName(), u"None"_s);
    EXPECT_FALSE(panel->imageView->image().isNull());
}

// The toolkit reads no PDF by itself, and no damaged picture.
TEST_F(LayoutTest, HidesTheViewOfAPictureThatCannotBeRead)
{
    showPanel();
    for (const QString &file : {u"Resources/Page.pdf"_s, u"Resources/Damaged.tiff"_s}) {
        writeBundleFile(file, "%PDF-1.4\n%%EOF\n");
        panel->imageView->setImage(picture(Qt::red));
        panel->imageView->setImageName(u"Vivid"_s);
        panel->imageView->show();
        panel->changeImage(QFileInfo(file).baseName(), panel->imageView);
        EXPECT_TRUE(panel->imageView->isHidden()) << qPrintable(file);
        EXPECT_EQ(panel->imageView->imageName(), u"None"_s);
        EXPECT_EQ(panel->imageView->image().pixelColor(0, 0), QColor(Qt::red));
    }
}

TEST_F(LayoutTest, HidesAnEmptyViewWithoutNamingAPicture)
{
    showPanel();
    panel->changeImage(u"../Missing"_s, panel->imageView);
    EXPECT_TRUE(panel->imageView->isHidden());
    EXPECT_TRUE(panel->imageView->imageName().isNull());
    panel->changeImage(u"Missing"_s, nullptr);
}

} // namespace
