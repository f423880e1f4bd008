#include "platform/toolkit/ImageView.h"

#include "tests/support/CaseName.h"

#include <gtest/gtest.h>

#include <QtGui/QPainter>

namespace {

QImage red(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    return image;
}

// Where the view is red.
QRect redPart(ImageView &view)
{
    QImage shown(view.size(), QImage::Format_RGB32);
    shown.fill(Qt::white);
    view.render(&shown, QPoint(), QRegion(), QWidget::DrawChildren);
    QRect part;
    for (int y = 0; y < shown.height(); ++y) {
        for (int x = 0; x < shown.width(); ++x) {
            if (shown.pixel(x, y) == qRgb(255, 0, 0))
                part |= QRect(x, y, 1, 1);
        }
    }
    return part;
}

struct DrawCase
{
    const char *behaviour;
    QSize image;
    QSize shownAs;
    QRect drawn;
};

class Draw : public testing::TestWithParam<DrawCase>
{};

// In a view of 40 x 20.
const DrawCase kDrawCases[] = {
    {"SmallPictureInTheMiddle", {10, 10}, {}, {15, 5, 10, 10}},
    {"FittingPicture", {40, 20}, {}, {0, 0, 40, 20}},
    {"TallPictureIsScaledDown", {20, 40}, {}, {15, 0, 10, 20}},
    {"WidePictureIsScaledDown", {80, 20}, {}, {0, 5, 40, 10}},
    {"ASizeOfItsOwn", {200, 100}, {20, 10}, {10, 5, 20, 10}},
    {"NoPicture", {}, {}, {}},
};

TEST_P(Draw, KeepsTheProportions)
{
    ImageView view;
    view.resize(40, 20);
    view.setImage(GetParam().image.isEmpty() ? QImage() : red(GetParam().image),
                  GetParam().shownAs);
    EXPECT_EQ(redPart(view), GetParam().drawn);
}

INSTANTIATE_TEST_SUITE_P(Cases, Draw, testing::ValuesIn(kDrawCases), CaseName());

TEST(ImageViewTest, CountsThePicturesPutIntoIt)
{
    ImageView view;
    EXPECT_EQ(view.imagesPut(), 0);
    EXPECT_TRUE(view.image().isNull());
    EXPECT_TRUE(view.imageName().isNull());
    view.setImage(red({4, 4}));
    view.setImage(red({4, 4}));
    EXPECT_EQ(view.imagesPut(), 2);
}

TEST(ImageViewTest, IsAsLargeAsItsPictureIsShown)
{
    ImageView view;
    view.setImage(red({400, 300}));
    EXPECT_EQ(view.sizeHint(), QSize(400, 300));
    view.setImage(red({400, 300}), {278, 243});
    EXPECT_EQ(view.sizeHint(), QSize(278, 243));
}

} // namespace
