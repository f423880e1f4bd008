#include "printsettings/rules/AdvancedGroups.h"

#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QStringList offered(const QStringList &managedKeywords)
{
    QStringList ids;
    for (const AdvancedGroup &group : advancedGroups(managedKeywords)) {
        if (group.offered)
            ids << group.id;
    }
    return ids;
}

TEST(AdvancedGroups, StandInOneOrder)
{
    EXPECT_EQ(offered({u"VKDuplexMode"_s, u"VKJpeg"_s, u"VKReverse"_s}),
              QStringList({u"Layout"_s, u"VKJpeg"_s, u"VKDuplexMode"_s, u"OtherOption"_s}));
}

TEST(AdvancedGroups, HaveALayoutForMirrorOrReversePrinting)
{
    for (const QString &keyword : {u"MirrorPrint"_s, u"VKMirror"_s, u"VKReverse"_s})
        EXPECT_EQ(offered({keyword}), QStringList({u"Layout"_s, u"OtherOption"_s}));
}

TEST(AdvancedGroups, AlwaysHaveOthers)
{
    EXPECT_EQ(offered({}), QStringList({u"OtherOption"_s}));
    EXPECT_EQ(offered({u"vkreverse"_s, u"VKMediaType"_s}), QStringList({u"OtherOption"_s}));
}

TEST(AdvancedGroups, TakeTheTitlesOfOptionsFromThePPD)
{
    for (const AdvancedGroup &group : advancedGroups({}))
        EXPECT_EQ(group.titledByPPD, group.id.startsWith(u"VK"_s)) << qPrintable(group.id);
}

} // namespace
