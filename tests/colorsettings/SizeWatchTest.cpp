#include "platform/toolkit/SizeWatch.h"
#include "platform/toolkit/KeyWindow.h"
#include "tests/colorsettings/PictureFixture.h"

namespace {

// A folded panel, 110 points high. The dialog's window is another one than the key window, so that
// the watch fires only when a test wants it to.
class SizeWatchTest : public PictureTest
{
protected:
    SizeWatchTest()
    {
        show();
        setKeyWindow(&key);
        key.resize(400, 300);
        watch();
    }

    void resizeKeyWindow(int height)
    {
        key.resize(400, height);
        ASSERT_EQ(keyWindowHeight(), height);
    }

    void watch() { dialog.part<SizeWatch>("sizeWatch").fire(); }

    int drawnBy(int height)
    {
        const int before = view().imagesPut();
        resizeKeyWindow(height);
        watch();
        return view().imagesPut() - before;
    }

    QWidget key;
};

} // namespace

TEST_F(SizeWatchTest, AWindowJustAsTallAsThePanelAndItsMarginDrawsNothing)
{
    EXPECT_EQ(drawnBy(206), 0);
    EXPECT_EQ(dialog.content("frameHeight"), QVariant(206.0));
}

TEST_F(SizeWatchTest, OnePointTallerDraws)
{
    EXPECT_EQ(drawnBy(207), 1);
    EXPECT_EQ(dialog.content("frameHeight"), QVariant(207.0));
    EXPECT_EQ(dialog.content("frameHeight").typeId(), QMetaType::Double);
}

TEST_F(SizeWatchTest, TheSameHeightTwiceDrawsOnce)
{
    EXPECT_EQ(drawnBy(500), 1);
    EXPECT_EQ(drawnBy(500), 0);
    EXPECT_EQ(drawnBy(501), 1);
}

TEST_F(SizeWatchTest, OffScreenItDoesNothing)
{
    dialog.panel->shouldHide();
    EXPECT_EQ(drawnBy(500), 0);
    EXPECT_EQ(dialog.content("frameHeight"), QVariant(300.0));
}

TEST_F(SizeWatchTest, WithoutAKeyWindowTheHeightIsZero)
{
    setKeyWindow(nullptr);
    const int before = view().imagesPut();
    watch();
    EXPECT_EQ(view().imagesPut(), before);
    EXPECT_EQ(dialog.content("frameHeight"), QVariant(0.0));
}

TEST_F(SizeWatchTest, ShowingThePanelAgainComparesAfresh)
{
    dialog.panel->shouldHide();
    dialog.panel->willShow();
    EXPECT_EQ(dialog.content("frameHeight"), QVariant(0.0));
    EXPECT_EQ(drawnBy(300), 1);
}

TEST_F(SizeWatchTest, AnUnfoldedPanelNeedsATallerWindow)
{
    dialog.panel->loadedView()->setFixedHeight(312);
    EXPECT_EQ(drawnBy(408), 0);
    EXPECT_EQ(drawnBy(409), 1);
}
