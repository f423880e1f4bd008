// Recorded sessions and runs still come to what was recorded; README.md tells what to do when a
// change is meant.
#include "tests/golden/GoldenCase.h"

#include <QtCore/QFileInfo>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

using namespace Qt::StringLiterals;

namespace {

constexpr int kSessions = 150;
constexpr int kRuns = 30;

QStringList casesEndingWith(const QString &ending)
{
    QStringList cases = casesIn(QDir(QStringLiteral(CASE_FOLDER)));
    cases.removeIf([&](const QString &path) { return !path.endsWith(ending); });
    return cases;
}

std::string testName(const testing::TestParamInfo<QString> &tested)
{
    std::string name = QFileInfo(tested.param).baseName().toStdString();
    std::ranges::replace(name, '-', '_');
    return name;
}

class GoldenCase : public testing::TestWithParam<QString>
{};

} // namespace

TEST_P(GoldenCase, ComesToWhatWasRecorded)
{
    const ProgramUnderTest program{QStringLiteral(VELKARO_PROGRAM)};
    const QString difference = differenceOfCase(GetParam(), program);
    EXPECT_TRUE(difference.isNull()) << difference.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Sessions, GoldenCase, testing::ValuesIn(casesEndingWith(u".jsonl"_s)),
                         testName);
INSTANTIATE_TEST_SUITE_P(Runs, GoldenCase, testing::ValuesIn(casesEndingWith(u".run"_s)), testName);

TEST(GoldenCases, AreAllThere)
{
    EXPECT_EQ(casesEndingWith(u".jsonl"_s).size(), kSessions);
    EXPECT_EQ(casesEndingWith(u".run"_s).size(), kRuns);
}
