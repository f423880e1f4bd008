#include "dialog/files/OutputRule.h"

#include "tests/support/CaseName.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Case
{
    const char *behaviour;
    OutputFacts facts;
    OutputVerdict verdict;
};

void PrintTo(const Case &row, std::ostream *out)
{
    *out << row.behaviour;
}

class OutputRule : public testing::TestWithParam<Case>
{};

TEST_P(OutputRule, DecidesFromFacts)
{
    EXPECT_EQ(verdictOn(GetParam().facts), GetParam().verdict);
}

constexpr bool kInput = true;
constexpr bool kOwn = true;
constexpr bool kMayReplace = true;

INSTANTIATE_TEST_SUITE_P(
    Table, OutputRule,
    testing::Values(
        Case{"AFreeName", {Standing::Nothing}, OutputVerdict::Create},
        Case{"AFreeNameWhereFilesMayBeReplaced",
             {Standing::Nothing, !kInput, !kOwn, kMayReplace},
             OutputVerdict::Create},
        Case{"AFile", {Standing::File}, OutputVerdict::Exists},
        Case{"AFileThatMayBeReplaced",
             {Standing::File, !kInput, !kOwn, kMayReplace},
             OutputVerdict::Replace},
        Case{"AFileOfThisRun", {Standing::File, !kInput, kOwn}, OutputVerdict::Replace},
        Case{"AnInput", {Standing::File, kInput}, OutputVerdict::IsInput},
        Case{"AnInputWhereFilesMayBeReplaced",
             {Standing::File, kInput, !kOwn, kMayReplace},
             OutputVerdict::IsInput},
        Case{"AnInputThatThisRunHasWritten",
             {Standing::File, kInput, kOwn, kMayReplace},
             OutputVerdict::IsInput},
        Case{"AnInputThatIsOpenAlready", {Standing::Stream, kInput}, OutputVerdict::IsInput},
        Case{"ADevice", {Standing::Stream}, OutputVerdict::Append},
        Case{"AFolder", {Standing::Folder}, OutputVerdict::IsFolder},
        Case{"AFolderWhereFilesMayBeReplaced",
             {Standing::Folder, !kInput, !kOwn, kMayReplace},
             OutputVerdict::IsFolder}),
    CaseName());

TEST(OutputRefusal, NamesTheFile)
{
    const QString path = u"a\nb"_s; // is shown on one line
    EXPECT_EQ(outputRefusal(OutputVerdict::IsInput, path),
              u"Nothing is written over a b: it is in use for this."_s);
    EXPECT_EQ(outputRefusal(OutputVerdict::IsFolder, path),
              u"a b is a folder: it cannot be written."_s);
    EXPECT_EQ(outputRefusal(OutputVerdict::Exists, path),
              u"The file a b exists already; --force replaces it."_s);
    for (const OutputVerdict verdict :
         {OutputVerdict::Create, OutputVerdict::Replace, OutputVerdict::Append})
        EXPECT_TRUE(outputRefusal(verdict, path).isNull());
}

} // namespace
