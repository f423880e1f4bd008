#include "tests/golden/Selection.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Selection, TakesWhatIsNewBeforeWhatIsThereAlready)
{
    const QList<Candidate> candidates{{u"both"_s, 100, {{u"do pick"_s, 1}, {u"do print"_s, 9}}},
                                      {u"again"_s, 50, {{u"do pick"_s, 5}}},
                                      {u"other"_s, 400, {{u"do help"_s, 1}}}};
    EXPECT_EQ(selectedCases(candidates, 3), (QStringList{u"both"_s, u"other"_s, u"again"_s}));
}

TEST(Selection, TakesTheShorterOfTwoThatCoverTheSame)
{
    const QList<Candidate> candidates{{u"long"_s, 200, {{u"do pick"_s, 1}}},
                                      {u"short"_s, 100, {{u"do pick"_s, 1}}}};
    EXPECT_EQ(selectedCases(candidates, 1), QStringList{u"short"_s});
}

TEST(Selection, TakesAnOrdinaryThingBeforeAFineOne)
{
    const QList<Candidate> candidates{{u"fine"_s, 100, {{u"fine a"_s, 1}, {u"fine b"_s, 1}}},
                                      {u"alert"_s, 100, {{u"alert a"_s, 1}}}};
    EXPECT_EQ(selectedCases(candidates, 1), QStringList{u"alert"_s});
}

TEST(Selection, TakesNoMoreThanThereAre)
{
    EXPECT_EQ(selectedCases({{u"only"_s, 1, {}}}, 5), QStringList{u"only"_s});
}
