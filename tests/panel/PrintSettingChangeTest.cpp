#include "panel/PrintSettingChange.h"
#include "tests/support/CaseName.h"

#include <QtCore/QString>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using Subject = PrintSettingChange::Subject;

struct Change
{
    const char *behaviour;
    PrintSettingChange change;
    QVariantMap userInfo;
    QString keyword;
};

class PostedChange : public testing::TestWithParam<Change>
{};

TEST_P(PostedChange, IsWrittenAndReadAsBothPanelsHaveIt)
{
    const Change &posted = GetParam();
    EXPECT_EQ(userInfoOf(posted.change), posted.userInfo);
    EXPECT_EQ(printSettingChange(posted.userInfo), posted.change);
    EXPECT_EQ(keywordOf(posted.change.subject), posted.keyword);
}

const Change kChanges[] = {
    {"Mono",
     {Subject::MonoColor, true},
     {{u"PointTo"_s, u"VKMonoColor"_s}, {u"VKMonoColor"_s, true}},
     u"VKMonoColor"_s},
    {"Dither",
     {Subject::HalfTonePattern, false},
     {{u"PointTo"_s, u"VKHalfTonePattern"_s}, {u"VKHalfTonePattern"_s, false}},
     u"VKHalfTonePattern"_s},
    {"Natural",
     {Subject::ColorMatching, true},
     {{u"PointTo"_s, u"VKColorMatching"_s}, {u"Natural"_s, true}},
     u"VKColorMatching"_s},
};

INSTANTIATE_TEST_SUITE_P(Changes, PostedChange, testing::ValuesIn(kChanges), CaseName());

TEST(ReadChange, IsOffWithoutAValue)
{
    EXPECT_EQ(printSettingChange({{u"PointTo"_s, u"VKColorMatching"_s}}),
              (PrintSettingChange{Subject::ColorMatching, false}));
}

TEST(ReadChange, IsNoneOfAnotherSubject)
{
    EXPECT_FALSE(printSettingChange({{u"PointTo"_s, u"VKJpeg"_s}}));
    EXPECT_FALSE(printSettingChange({}));
}

} // namespace
