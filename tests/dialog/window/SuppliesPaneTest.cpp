#include "dialog/window/SuppliesPane.h"

#include "dialog/window/SupplyBar.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"
#include "tests/support/TextRoom.h"

#include <QtGui/QAccessible>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr QRgb kCyan = 0xff00ffff;
constexpr QRgb kMagenta = 0xffff00ff;
constexpr QRgb kBlack = 0xff000000;
constexpr QRgb kWhite = 0xffffffff;

const QList<Supply> kInks{{u"Cyan & <b>light</b>"_s, {kCyan}, false, 80, SupplyState::Good},
                          {u"Black"_s, {kBlack}, false, 8, SupplyState::Low},
                          {u"Glue"_s}};

class Pane : public testing::Test
{
protected:
    Pane()
    {
        m_pane.setSupplies(kInks, {u"A4"_s, u"10 × 15 cm"_s});
        m_pane.resize(600, 300);
        m_pane.QWidget::show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_pane));
    }

    QStringList texts(const QString &name) const
    {
        QStringList all;
        for (const QLabel *label : m_pane.findChildren<QLabel *>(name))
            all += label->text();
        return all;
    }

    QList<SupplyBar *> bars() const { return m_pane.findChildren<SupplyBar *>(); }

    SuppliesPane m_pane;
};

TEST_F(Pane, ShowsNamesLevelsAndPapers)
{
    EXPECT_EQ(texts(u"supplyName"_s),
              (QStringList{u"Cyan & <b>light</b>"_s, u"Black"_s, u"Glue"_s}));
    EXPECT_EQ(texts(u"supplyLevel"_s), (QStringList{u"80%"_s, u"Low: 8%"_s, u"Not known"_s}));
    EXPECT_EQ(texts(u"loadedPapers"_s), QStringList{u"A4, 10 × 15 cm"_s});
}

TEST_F(Pane, IsReadByAssistiveTechnology)
{
    QStringList read;
    for (SupplyBar *bar : bars()) {
        QAccessibleInterface &accessible = *QAccessible::queryAccessibleInterface(bar);
        EXPECT_EQ(accessible.role(), QAccessible::ProgressBar);
        read += accessible.text(QAccessible::Name) + u": "_s +
                accessible.text(QAccessible::Description);
    }
    EXPECT_EQ(read, (QStringList{u"Cyan & <b>light</b>: 80%"_s, u"Black: Low: 8%"_s,
                                 u"Glue: Not known"_s}));
    EXPECT_EQ(
        QAccessible::queryAccessibleInterface(bars()[0])->valueInterface()->currentValue().toInt(),
        80);
}

TEST_F(Pane, IsWalkedWithTheKeyboard)
{
    bars()[0]->setFocus();
    QTest::keyClick(bars()[0], Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), bars()[1]);
    m_pane.setSupplies(kInks, {});
    EXPECT_EQ(QApplication::focusWidget(), bars()[1]) << "news leave the focus where it is";
}

TEST_F(Pane, IsWholeInALargeFont)
{
    const QFont before = QApplication::font();
    QFont large = before;
    large.setPointSize(24);
    QApplication::setFont(large);
    QStringList cut;
    EXPECT_TRUE(QTest::qWaitFor([&] { return (cut = cutTexts(m_pane)).isEmpty(); }, 500))
        << cut.join(u'\n').toStdString();
    EXPECT_GE(bars()[0]->height(), bars()[0]->fontMetrics().height());
    QApplication::setFont(before);
}

// --- The bar as it is seen -----------------------------------------------------------------------

constexpr QSize kSize(106,
                      20); // the inside is 96 pixels wide: 100 without margins, outline and gap

QImage picture(const Supply &supply, const QPalette &palette)
{
    SupplyBar bar(supply);
    bar.setPalette(palette);
    bar.resize(kSize);
    return bar.grab().toImage();
}

/// How many pixels of the row in the middle have the color.
int run(const QImage &image, QRgb color, int y = kSize.height() / 2)
{
    int pixels = 0;
    for (int x = 0; x < image.width(); ++x)
        pixels += image.pixel(x, y) == color ? 1 : 0;
    return pixels;
}

QPalette ground(QRgb base, QRgb text)
{
    QPalette palette;
    palette.setColor(QPalette::Base, QColor(base));
    palette.setColor(QPalette::WindowText, QColor(text));
    return palette;
}

struct Ground
{
    const char *behaviour;
    QRgb base;
    QRgb text;
};

class Bar : public testing::TestWithParam<Ground>
{
protected:
    const QPalette m_palette = ground(GetParam().base, GetParam().text);
};

TEST_P(Bar, IsAsLongAsTheLevel)
{
    EXPECT_EQ(run(picture({u"a"_s, {kCyan}, false, 50, SupplyState::Good}, m_palette), kCyan), 48);
    EXPECT_EQ(run(picture({u"a"_s, {kCyan}, false, 100, SupplyState::Good}, m_palette), kCyan), 96);
    EXPECT_EQ(run(picture({u"a"_s, {kCyan}, false, 0, SupplyState::Empty}, m_palette), kCyan), 0);
}

/// An ink of the color of the ground: outline and end of the level tell.
TEST_P(Bar, IsSeenWhateverItsColor)
{
    const QImage ink =
        picture({u"a"_s, {GetParam().base}, false, 50, SupplyState::Good}, m_palette);
    EXPECT_EQ(run(ink, GetParam().text), 3) << "both sides of the outline and the level's end";
    const QImage empty = picture({u"a"_s, {}, false, 0, SupplyState::Empty}, m_palette);
    EXPECT_EQ(run(empty, GetParam().text), 2);
}

TEST_P(Bar, HasAStripeForEachColorOfACartridge)
{
    const QImage image =
        picture({u"a"_s, {kCyan, kMagenta}, false, 50, SupplyState::Good}, m_palette);
    EXPECT_EQ(run(image, kCyan, 7), 48);
    EXPECT_EQ(run(image, kMagenta, 12), 48);
}

TEST_P(Bar, IsHatchedWhereNothingIsKnown)
{
    const QImage unknown = picture({u"a"_s, {kCyan}}, m_palette);
    EXPECT_EQ(run(unknown, kCyan), 0);
    const int lines = run(unknown, GetParam().text);
    EXPECT_GT(lines, 8);
    EXPECT_LT(lines, 48);
}

INSTANTIATE_TEST_SUITE_P(Desktops, Bar,
                         testing::Values(Ground{"Light", kWhite, kBlack},
                                         Ground{"Dark", kBlack, kWhite}),
                         CaseName());

} // namespace
