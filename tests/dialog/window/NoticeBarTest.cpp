#include "dialog/window/NoticeBar.h"
#include "dialog/window/NoticeSign.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QImage signOf(NoticeBar &bar, NoticeBar::Kind kind)
{
    bar.tell(kind, u"A sentence."_s);
    return bar.findChild<NoticeSign *>()->grab().toImage();
}

TEST(NoticeBar, HasASignOfItsOwnForEachKind)
{
    NoticeBar bar;
    const QImage information = signOf(bar, NoticeBar::Kind::Information);
    const QImage warning = signOf(bar, NoticeBar::Kind::Warning);
    const QImage error = signOf(bar, NoticeBar::Kind::Error);
    EXPECT_NE(information, warning);
    EXPECT_NE(warning, error);
    EXPECT_NE(error, information);
    EXPECT_EQ(signOf(bar, NoticeBar::Kind::Information), information);
}

TEST(NoticeSign, IsAMarkInACircleOfItsColor)
{
    NoticeSign sign;
    for (const auto mark :
         {NoticeSign::Mark::LetterI, NoticeSign::Mark::Exclamation, NoticeSign::Mark::Cross}) {
        sign.setSign(mark, Qt::darkGreen);
        const QImage painted = sign.grab().toImage();
        const QPoint right(painted.width() - 2, painted.height() / 2);
        EXPECT_EQ(painted.pixelColor(right), QColor(Qt::darkGreen));
        EXPECT_NE(painted.pixelColor(0, 0), QColor(Qt::darkGreen));
        int white = 0;
        for (int y = 0; y < painted.height(); ++y)
            for (int x = 0; x < painted.width(); ++x)
                white += painted.pixelColor(x, y) == QColor(Qt::white) ? 1 : 0;
        EXPECT_GT(white, 0);
    }
}

} // namespace
