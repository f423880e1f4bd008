// The sizes of the panels' views, in points and in pixels.
#include "platform/toolkit/PanelPoint.h"
#include "tests/dialog/window/DialogWindowFixture.h"
#include "tests/support/CaseName.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QToolButton>

using namespace Qt::StringLiterals;

namespace {

struct PanelHeights
{
    const char *behaviour;
    QString printer;
    QString panel;
    int folded;
    int unfolded;
};

class PanelInPoints : public DialogWindowFixture, public testing::WithParamInterface<PanelHeights>
{
protected:
    PanelInPoints() : m_font(QApplication::font()) { m_line.ppd = samplePPD(GetParam().printer); }
    ~PanelInPoints() override
    {
        m_window.reset();
        QApplication::setFont(m_font);
        setPixelsPerPoint(1);
    }

    /// The sizes of the view: folded, unfolded and folded again.
    QList<QSize> sizes()
    {
        QList<QSize> sizes{m_window->shownPart()->size()};
        for (int click = 0; click < 2; ++click) {
            m_window->shownPart()->findChild<QToolButton *>(u"optionButton"_s)->click();
            sizes += m_window->shownPart()->size();
        }
        return sizes;
    }

    const QFont m_font;
};

TEST_P(PanelInPoints, HasItsOwnSizeAtTheDefaultFont)
{
    open();
    ASSERT_TRUE(m_window->showPart(GetParam().panel));
    constexpr int kWidth = 560;
    EXPECT_EQ(sizes(), (QList<QSize>{{kWidth, GetParam().folded},
                                     {kWidth, GetParam().unfolded},
                                     {kWidth, GetParam().folded}}));
}

TEST_P(PanelInPoints, HasTheSamePointsInALargeFont)
{
    QFont font = m_font;
    font.setPointSize(24);
    QApplication::setFont(font);
    open();
    ASSERT_TRUE(m_window->showPart(GetParam().panel));
    QList<int> points;
    for (const QSize &size : sizes()) {
        EXPECT_GT(size.height(), 2 * toPoints(size.height()));
        points += toPoints(size.height());
    }
    EXPECT_EQ(points, (QList<int>{GetParam().folded, GetParam().unfolded, GetParam().folded}));
}

const PanelHeights kPanels[] = {
    {"PrintSettingsWithAPaperFeed", u"velkaro-px-t900"_s, u"print"_s, 160, 300},
    {"PrintSettingsWithout", u"velkaro-mx-j710dw"_s, u"print"_s, 130, 270},
    {"ColorSettings", u"velkaro-px-t900"_s, u"color"_s, 110, 312},
};

INSTANTIATE_TEST_SUITE_P(Panels, PanelInPoints, testing::ValuesIn(kPanels), CaseName());

} // namespace
