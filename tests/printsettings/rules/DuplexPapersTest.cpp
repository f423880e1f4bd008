#include "printsettings/rules/DuplexPapers.h"

#include <QtCore/QStringList>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(DuplexPapers, AreExactlyTheListedOnes)
{
    const QStringList accepted = {u"A3"_s,
                                  u"Tabloid"_s,
                                  u"B4"_s,
                                  u"A3.LongGrain"_s,
                                  u"A3.ShortGrain"_s,
                                  u"Tabloid.ShortGrain"_s,
                                  u"B4.ShortGrain"_s,
                                  u"Letter"_s,
                                  u"Legal"_s,
                                  u"Executive"_s,
                                  u"B5"_s,
                                  u"A4"_s,
                                  u"A5"_s,
                                  u"A6"_s,
                                  u"Postcard"_s,
                                  u"VkA3"_s,
                                  u"VkA3_S"_s,
                                  u"VkLedger_S"_s,
                                  u"VkB4_S"_s};
    for (const QString &name : accepted)
        EXPECT_TRUE(isDuplexPaper(name)) << qPrintable(name);
    for (const QString &name : {u"a4"_s, u"A4.Fullbleed"_s, u"B4.LongGrain"_s, u"Folio"_s,
                                u"VkHagaki_B"_s, u"EnvDL"_s, u"VkA3_s"_s, u""_s, QString()})
        EXPECT_FALSE(isDuplexPaper(name)) << qPrintable(name);
}

} // namespace
