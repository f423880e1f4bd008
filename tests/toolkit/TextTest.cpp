#include "platform/toolkit/PlainText.h"
#include "platform/toolkit/TextMeasuring.h"

#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

#include <QtGui/QFontMetricsF>
#include <QtWidgets/QCheckBox>

using namespace Qt::StringLiterals;

namespace {

struct DisplayCase
{
    const char *behaviour;
    QString text;
    QString shown;
};

class DisplayText : public testing::TestWithParam<DisplayCase>
{};

const DisplayCase kDisplayCases[] = {
    {"OrdinaryText", u"Velkaro PX, glossy"_s, u"Velkaro PX, glossy"_s},
    {"Japanese", u"普通紙(両面)"_s, u"普通紙(両面)"_s},
    {"MarkupIsKept", u"<b>Plain</b> &amp;"_s, u"<b>Plain</b> &amp;"_s},
    {"LineEnd", u"one\ntwo"_s, u"one two"_s},
    {"Tab", u"one\ttwo"_s, u"one two"_s},
    {"Escape", u"\x1b[31mred"_s, u" [31mred"_s},
    {"NullCharacter", QStringLiteral("a\0b"), u"a b"_s},
    {"LaterControls", u"a\u0085b\u009bc"_s, u"a b c"_s},
    {"LineSeparators", u"a\u2028b\u2029c"_s, u"a b c"_s},
    {"DirectionOverride", u"gpj.\u202eevil\u202c"_s, u"gpj.evil"_s},
    {"DirectionMarks", u"\u200ea\u200fb\u061cc"_s, u"abc"_s},
    {"DirectionIsolates", u"\u2066a\u2069b\u2068c\u2067d"_s, u"abcd"_s},
    {"Emoji", u"Photo \U0001F5BC"_s, u"Photo \U0001F5BC"_s},
    {"Empty", u""_s, u""_s},
};

TEST_P(DisplayText, IsOneLineThatShowsWhatItSays)
{
    EXPECT_EQ(displayText(GetParam().text), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(Cases, DisplayText, testing::ValuesIn(kDisplayCases), CaseName());

struct TitleCase
{
    const char *behaviour;
    QString title;
    QString text;
};

class ButtonTitle : public testing::TestWithParam<TitleCase>
{};

const TitleCase kTitleCases[] = {
    {"WithoutAmpersand", u"Mirror"_s, u"Mirror"_s},
    {"OneAmpersand", u"Black & White"_s, u"Black && White"_s},
    {"TwoAmpersands", u"Fast && Loose"_s, u"Fast &&&& Loose"_s},
    {"ThreeAmpersands", u"&&&Best"_s, u"&&&&&&Best"_s},
    {"Empty", u""_s, u""_s},
};

TEST_P(ButtonTitle, HasNoMnemonicAndComesBackAsItWas)
{
    QCheckBox box;
    setButtonTitle(&box, GetParam().title);
    EXPECT_EQ(box.text(), GetParam().text);
    EXPECT_TRUE(box.shortcut().isEmpty());
    EXPECT_EQ(buttonTitle(&box), GetParam().title);
}

TEST(MnemonicOfAButton, StaysWithItsTitleAndIsNoPartOfIt)
{
    for (const auto &[text, title] :
         {std::pair(u"&Mirror"_s, u"Mirror"_s), std::pair(u"Black && &White"_s, u"Black & White"_s),
          std::pair(u"左右反転(&M)"_s, u"左右反転"_s), std::pair(u"Size (A)(&B)"_s, u"Size (A)"_s),
          std::pair(u"A(&&B)"_s, u"A(&B)"_s), std::pair(u"End&"_s, u"End"_s)}) {
        QCheckBox box;
        box.setText(text);
        EXPECT_EQ(buttonTitle(&box), title);
        setButtonTitle(&box, title);
        EXPECT_EQ(box.text(), text);
        setButtonTitle(&box, u"Other"_s);
        EXPECT_EQ(box.text(), u"Other"_s);
    }
}

INSTANTIATE_TEST_SUITE_P(Cases, ButtonTitle, testing::ValuesIn(kTitleCases), CaseName());

struct HeightCase
{
    const char *behaviour;
    QString text;
    double characters; ///< the width, in widths of the letter n
    int lines;
};

class LaidOutHeight : public testing::TestWithParam<HeightCase>
{};

const HeightCase kHeightCases[] = {
    {"OneLine", u"nn nn"_s, 20, 1},
    {"EmptyTextIsOneLine", u""_s, 20, 1},
    {"WrappedAtAWord", u"nnnn nnnn"_s, 6, 2},
    {"AWordThatIsTooLongIsBroken", u"nnnnnnnn"_s, 4.5, 2},
    {"LineBreaksCount", u"n\nn\n\nn"_s, 20, 4},
    {"ALineBreakAtTheEndCounts", u"n\n"_s, 20, 2},
};

TEST_P(LaidOutHeight, IsThatOfItsLines)
{
    QFont font;
    font.setPixelSize(20);
    const QFontMetricsF metrics(font);
    const double width = GetParam().characters * metrics.horizontalAdvance(u'n');
    EXPECT_NEAR(laidOutHeight(GetParam().text, font, width), GetParam().lines * metrics.height(),
                GetParam().lines);
}

INSTANTIATE_TEST_SUITE_P(Cases, LaidOutHeight, testing::ValuesIn(kHeightCases), CaseName());

TEST(LaidOutHeightTest, GrowsWithTheFont)
{
    QFont small;
    small.setPixelSize(10);
    QFont large;
    large.setPixelSize(30);
    EXPECT_LT(laidOutHeight(u"n"_s, small, 100), laidOutHeight(u"n"_s, large, 100));
}

} // namespace
