#include "platform/toolkit/PanelPoint.h"

#include "tests/support/CaseName.h"

#include <gtest/gtest.h>

#include <QtWidgets/QSpinBox>
#include <QtWidgets/QVBoxLayout>

namespace {

class PanelPoint : public testing::Test
{
protected:
    ~PanelPoint() override { setPixelsPerPoint(1); }
};

struct FontCase
{
    const char *behaviour;
    int lineHeight;
    double pixels;
};

class PointOfFont : public testing::TestWithParam<FontCase>
{};

TEST_P(PointOfFont, GrowsWithItsLines)
{
    EXPECT_DOUBLE_EQ(pixelsPerPoint(GetParam().lineHeight), GetParam().pixels);
}

const FontCase kFonts[] = {
    {"NoFont", 0, 1},        {"SmallFont", 13, 1},   {"TheOneThatViewsAreDrawnFor", 14, 1},
    {"LargerFont", 23, 1.5}, {"TwiceTheRow", 32, 2},
};

INSTANTIATE_TEST_SUITE_P(Cases, PointOfFont, testing::ValuesIn(kFonts), CaseName());

TEST_F(PanelPoint, IsAPixelUntilADialogSaysMore)
{
    EXPECT_EQ(pixelsPerPoint(), 1);
    EXPECT_EQ(toPixels(160), 160);
    setPixelsPerPoint(0.5);
    EXPECT_EQ(pixelsPerPoint(), 1);
    setPixelsPerPoint(1.25);
    EXPECT_EQ(toPixels(160), 200);
    EXPECT_EQ(toPixels(130), 163);
    EXPECT_EQ(toPixels(-30), -38);
}

TEST_F(PanelPoint, ComesBackFromPixelsExactly)
{
    for (const double pixels : {1.0, 1.01, 1.0555555, 1.1, 1.3333333, 1.5, 2.3333333, 3.7}) {
        setPixelsPerPoint(pixels);
        for (int points = -200; points <= 1000; ++points)
            ASSERT_EQ(toPoints(toPixels(points)), points) << pixels;
    }
}

TEST_F(PanelPoint, GivesAFoldedViewItsFormerSize)
{
    setPixelsPerPoint(42.0 / 18);
    QWidget view;
    view.resize(777, toPixels(160));
    QSizeF size = sizeInPoints(view);
    EXPECT_EQ(size.height(), 160);
    size.rheight() += 140;
    view.resize(toPixels(size.width()), toPixels(size.height()));
    EXPECT_EQ(view.size(), QSize(777, 700));
}

TEST_F(PanelPoint, ScalesTheHeightsOfFramesThatNoLayoutSets)
{
    setPixelsPerPoint(1.5);
    QWidget view;
    auto *placed = new QSpinBox(&view);
    placed->setGeometry(10, 20, 50, 26);
    const QWidget *inPlaced = placed->findChild<QWidget *>();
    const QRect before = inPlaced->geometry();
    auto *section = new QWidget(&view);
    section->setGeometry(0, 110, 560, 203);
    auto *inSection = new QWidget(section);
    inSection->setGeometry(3, 4, 5, 7);
    auto *column = new QWidget(&view);
    column->setGeometry(0, 0, 100, 40);
    auto *laidOut = new QWidget;
    (new QVBoxLayout(column))->addWidget(laidOut);
    const QRect inLayout = laidOut->geometry();
    scaleFrames(view);
    EXPECT_EQ(placed->geometry(), QRect(10, 30, 50, 39));
    EXPECT_EQ(inPlaced->geometry(), before) << "a control arranges its own parts";
    EXPECT_EQ(section->geometry(), QRect(0, 165, 560, 305));
    EXPECT_EQ(inSection->geometry(), QRect(3, 6, 5, 11));
    EXPECT_EQ(column->geometry(), QRect(0, 0, 100, 60));
    EXPECT_EQ(laidOut->geometry(), inLayout);
}

} // namespace
