#include "dialog/job/OutgoingText.h"

#include "tests/support/CaseName.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Text
{
    const char *behaviour;
    QString text;
    QByteArray leaves;
};

void PrintTo(const Text &row, std::ostream *out)
{
    *out << row.behaviour;
}

class OutgoingText : public testing::TestWithParam<Text>
{};

TEST_P(OutgoingText, IsOneLineThatFits)
{
    EXPECT_EQ(outgoingText(GetParam().text, "neutral"), GetParam().leaves);
}

const QString kFamily = u"\U0001F469\u200D\U0001F467"_s; // one picture: 11 bytes

INSTANTIATE_TEST_SUITE_P(
    Table, OutgoingText,
    testing::Values(
        Text{"Plain", u"Holiday 2.pdf"_s, "Holiday 2.pdf"},
        Text{"Japanese", u"休暇.pdf"_s, "\xE4\xBC\x91\xE6\x9A\x87.pdf"},
        Text{"LineBreaksBecomeSpaces", u"a\nb\r\nc"_s, "a b  c"},
        Text{"EscapeBecomesASpace", u"a\u001B[2Jb"_s, "a [2Jb"},
        Text{"ZeroBecomesASpace", QString(u'a') + QChar(0) + u'b', "a b"},
        Text{"C1ControlsBecomeSpaces", u"a\u009Bb\u0085c"_s, "a b c"},
        Text{"UnicodeLineBreaksBecomeSpaces", u"a\u2028b\u2029c"_s, "a b c"},
        Text{"DirectionOverridesAreLeftOut", u"a\u202Efdp.exe\u2066"_s, "afdp.exe"},
        Text{"SpacesAtTheEndsGo", u"\n a \t"_s, "a"},
        Text{"HalfAPairIsReplaced", u"a"_s + QChar(0xD83D) + u'b',
             "a\xEF\xBF\xBD"
             "b"},
        Text{"ThePairsOtherHalfToo", QString(QChar(0xDE00)), "\xEF\xBF\xBD"},
        Text{"AWholePairStays", u"\U0001F600"_s, "\xF0\x9F\x98\x80"},
        Text{"Fits", QString(255, u'x'), QByteArray(255, 'x')},
        Text{"IsCut", QString(300, u'x'), QByteArray(255, 'x')},
        Text{"IsCutBeforeAnUmlaut", QString(254, u'x') + u"ü"_s, QByteArray(254, 'x')},
        Text{"IsCutAfterAnUmlaut", QString(253, u'x') + u"üx"_s, QByteArray(253, 'x') + "\xC3\xBC"},
        Text{"IsCutBeforeAnAccentedLetter", QString(254, u'x') + u"e\u0301"_s,
             QByteArray(254, 'x')},
        Text{"IsCutBeforeAPictureOfSeveralParts", QString(250, u'x') + kFamily,
             QByteArray(250, 'x')},
        Text{"IsCutBetweenPairs", QString(3, u'x') + u"\U0001F600"_s.repeated(70),
             "xxx" + QByteArray("\xF0\x9F\x98\x80").repeated(63)},
        Text{"ALetterOfTooManyAccentsIsCutBetweenThem", u"e"_s + QString(200, u'\u0301'),
             "e" + QByteArray("\xCC\x81").repeated(127)},
        Text{"NoSpaceIsLeftAtTheCut", QString(254, u'x') + u"  y"_s, QByteArray(254, 'x')},
        Text{"Nothing", QString(), "neutral"}, Text{"SpacesAlone", u" \u3000 "_s, "neutral"},
        Text{"ControlsAlone", u"\n\u001B\u202E"_s, "neutral"}),
    CaseName());

struct GivenName
{
    const char *behaviour;
    QString name;
    QByteArray leaves;
};

void PrintTo(const GivenName &row, std::ostream *out)
{
    *out << row.behaviour;
}

class OutgoingDocumentName : public testing::TestWithParam<GivenName>
{};

TEST_P(OutgoingDocumentName, HasNoFolders)
{
    EXPECT_EQ(outgoingDocumentName(GetParam().name), GetParam().leaves);
}

INSTANTIATE_TEST_SUITE_P(
    Table, OutgoingDocumentName,
    testing::Values(GivenName{"Plain", u"a.pdf"_s, "a.pdf"},
                    GivenName{"Path", u"/tmp/x/a.pdf"_s, "a.pdf"},
                    GivenName{"Above", u"../.."_s, "document"},
                    GivenName{"Here", u"."_s, "document"}, GivenName{"Folder", u"a/"_s, "document"},
                    GivenName{"Hidden", u"..a"_s, "..a"}, GivenName{"None", QString(), "document"},
                    GivenName{"ControlCharacters", u"a\nb\u001B.pdf"_s, "a b .pdf"}),
    CaseName());

TEST(OutgoingTitle, IsNeutralWhenNothingIsLeft)
{
    EXPECT_EQ(outgoingTitle(u"\n"_s), "Untitled");
    EXPECT_EQ(outgoingTitle(u"A\nB"_s), "A B");
}

} // namespace
