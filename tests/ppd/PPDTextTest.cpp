#include "platform/ppd/PPDText.h"

#include "tests/support/CaseName.h"
#include "tests/support/PPDSource.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct TextCase
{
    const char *behaviour;
    QByteArray bytes;
    QString text;
};

class PPDTextOf : public testing::TestWithParam<TextCase>
{};

const TextCase kTextCases[] = {
    {"Ascii", "Plain Paper", u"Plain Paper"_s},
    {"Japanese", "普通紙", u"普通紙"_s},
    {"CutAfterTheFirstByteOfACharacter", "普通\xe7", u"普通"_s},
    {"CutAfterTheSecondByteOfACharacter", "普通\xe7\xb4", u"普通"_s},
    {"CutAfterThreeBytesOfFour", "Photo \xf0\x9f\x96", u"Photo "_s},
    {"NothingButACut", "\xe7", u""_s},
    {"BrokenInTheMiddle",
     "a\xff"
     "b",
     u"a\ufffd"
     "b"_s},
    {"ControlCharacters", "Line one\nLine two\ttab", u"Line one Line two tab"_s},
    {"Escape", "\x1b[31mred", u" [31mred"_s},
    {"DirectionOverride",
     "gpj.\xe2\x80\xae"
     "evil",
     u"gpj.evil"_s},
    {"MarkupAndAmpersand", "<b>Plain</b> & Simple", u"<b>Plain</b> & Simple"_s},
    {"Empty", "", u""_s},
};

TEST_P(PPDTextOf, IsReadableOnOneLine)
{
    const QString text = ppdText(GetParam().bytes.constData());
    EXPECT_EQ(text, GetParam().text);
    EXPECT_FALSE(text.isNull());
}

INSTANTIATE_TEST_SUITE_P(Cases, PPDTextOf, testing::ValuesIn(kTextCases), CaseName());

TEST(PPDTextTest, IsMissingForANullPointer)
{
    EXPECT_TRUE(ppdText(nullptr).isNull());
    EXPECT_TRUE(ppdName(nullptr).isNull());
}

TEST(PPDTextTest, TakesAsciiNamesAlone)
{
    EXPECT_EQ(ppdName("VKMediaType"), u"VKMediaType"_s);
    EXPECT_EQ(ppdBytes(u"VKMediaType"_s), "VKMediaType");
    EXPECT_EQ(ppdBytes(u"用紙"_s), "?");
    EXPECT_EQ(ppdBytes(u"Médium"_s), "?");
}

class PPDLookUpTest : public testing::Test
{
protected:
    PPDHandle ppd = PPDSource().option("VKMediaType/Media Type", {"Plain", "Glossy"}).open();
};

TEST_F(PPDLookUpTest, FindsOptionsAndChoicesByTheirNamesInAnyLetterCase)
{
    ASSERT_NE(ppd, nullptr);
    ppd_option_t *option = findOption(ppd.get(), u"VKMediaType"_s);
    ASSERT_NE(option, nullptr);
    EXPECT_STREQ(option->text, "Media Type");
    EXPECT_EQ(findOption(ppd.get(), u"vkmediatype"_s), option);
    EXPECT_EQ(findOption(ppd.get(), u"VKMEDIATYPE"_s), option);
    EXPECT_EQ(findOption(ppd.get(), u"VKMedia"_s), nullptr);
    EXPECT_EQ(findOption(ppd.get(), u"用紙"_s), nullptr);
    EXPECT_EQ(findOption(ppd.get(), QString()), nullptr);
    EXPECT_EQ(findOption(nullptr, u"VKMediaType"_s), nullptr);
    EXPECT_STREQ(findChoice(option, u"Glossy"_s)->text, "Glossy");
    EXPECT_STREQ(findChoice(option, u"gLOSSY"_s)->choice, "Glossy");
    EXPECT_EQ(findChoice(option, u"Gloss"_s), nullptr);
    EXPECT_EQ(findChoice(option, QString()), nullptr);
    EXPECT_EQ(findChoice(nullptr, u"Glossy"_s), nullptr);
}

TEST_F(PPDLookUpTest, TellsTheMarkedChoice)
{
    EXPECT_EQ(markedChoice(ppd.get(), u"VKMediaType"_s), u"Plain"_s);
    ppdMarkOption(ppd.get(), "VKMediaType", "Glossy");
    EXPECT_EQ(markedChoice(ppd.get(), u"VKMediaType"_s), u"Glossy"_s);
    EXPECT_EQ(markedChoice(ppd.get(), u"vkmediatype"_s), u"Glossy"_s);
    EXPECT_TRUE(markedChoice(ppd.get(), u"NoSuchOption"_s).isNull());
    EXPECT_TRUE(markedChoice(nullptr, u"VKMediaType"_s).isNull());
    unmark(ppd.get(), "VKMediaType");
    EXPECT_TRUE(markedChoice(ppd.get(), u"VKMediaType"_s).isNull());
}

TEST(PPDWithoutDefaultTest, HasNoMarkedChoice)
{
    const PPDHandle ppd = PPDSource().optionWithoutDefault("VKMediaType", {"Plain"}).open();
    const ppd_option_t *option = findOption(ppd.get(), u"VKMediaType"_s);
    ASSERT_NE(option, nullptr);
    EXPECT_STREQ(option->defchoice, "");
    EXPECT_TRUE(markedChoice(ppd.get(), u"VKMediaType"_s).isNull());
}

TEST(PPDCutTest, ReadsATextThatLibcupsCutInTheMiddleOfACharacter)
{
    // 27 characters of three bytes: libcups keeps 80 bytes, and with them two thirds of the last.
    const QByteArray text = QString(27, u'紙').toUtf8();
    const PPDHandle ppd = PPDSource().option("VKMediaType/Media Type", {"Plain/" + text}).open();
    ASSERT_NE(ppd, nullptr);
    const ppd_option_t *option = findOption(ppd.get(), u"VKMediaType"_s);
    ASSERT_NE(option, nullptr);
    EXPECT_EQ(ppdText(option->choices[0].text), QString(26, u'紙'));
}

TEST(PPDCutTest, ReadsHexEscapesAsPlainText)
{
    const PPDHandle ppd =
        PPDSource().option("VKMediaType/Media <3C>b<3E>", {"Plain/A<0A>B<1B>C & <22>D<22>"}).open();
    ASSERT_NE(ppd, nullptr);
    const ppd_option_t *option = findOption(ppd.get(), u"VKMediaType"_s);
    ASSERT_NE(option, nullptr);
    EXPECT_EQ(ppdText(option->text), u"Media <b>"_s);
    EXPECT_EQ(ppdText(option->choices[0].text), u"A B C & \"D\""_s);
}

} // namespace
