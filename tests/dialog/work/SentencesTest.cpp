#include "dialog/work/Sentences.h"

#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Ending
{
    const char *behaviour;
    QString text;
    QString sentence;
};

class EndedSentence : public testing::TestWithParam<Ending>
{};

TEST_P(EndedSentence, EndsOnce)
{
    EXPECT_EQ(endedLikeASentence(GetParam().text), GetParam().sentence);
}

const Ending kEndings[] = {
    {"WithoutAStop", u"Too many jobs"_s, u"Too many jobs."_s},
    {"WithAStop", u"Too many jobs."_s, u"Too many jobs."_s},
    {"Question", u"Really?"_s, u"Really?"_s},
    {"CutShort", u"Too many…"_s, u"Too many…"_s},
    {"FullWidthStop", u"ジョブが多すぎます。"_s, u"ジョブが多すぎます。"_s},
    {"FullWidthQuestion", u"よろしいですか？"_s, u"よろしいですか？"_s},
    {"FullWidthExclamation", u"停止！"_s, u"停止！"_s},
};

INSTANTIATE_TEST_SUITE_P(Table, EndedSentence, testing::ValuesIn(kEndings), CaseName());

TEST(JoinedSentences, StandOneAfterTheOther)
{
    EXPECT_EQ(joinedSentences({}), QString());
    EXPECT_EQ(joinedSentences({u"One."_s}), u"One."_s);
    EXPECT_EQ(joinedSentences({u"One."_s, u"Two?"_s, u"Three."_s}), u"One. Two? Three."_s);
    EXPECT_EQ(joinedSentences({u"一。"_s, u"二。"_s, u"Three."_s}), u"一。二。Three."_s);
}

} // namespace
