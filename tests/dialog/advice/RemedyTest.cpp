#include "dialog/advice/Remedy.h"

#include "tests/support/QStringPrinting.h"

#include <QtCore/QJsonDocument>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const Advice kAdvice{
    u"Quality"_s,
    u"High"_s,
    Advice::Outcome::Possible,
    {{{{u"Duplex"_s, QString(), u"None"_s}, {u"Media"_s, u"Plain"_s, u"Glossy"_s}},
      {{u"BiDir"_s, u"ON"_s, u"OFF"_s}}},
     {{{u"Media"_s, u"Plain"_s, u"Matte"_s}}, {}}},
    u"High is there."_s,
};

TEST(AdviceReport, HasTheMembersThatProgramsRead)
{
    EXPECT_EQ(QJsonDocument(adviceReport(kAdvice)).toJson(QJsonDocument::Compact),
              R"({"available":false,"changes":[{"choice":"None","from":null,"keyword":"Duplex"},)"
              R"({"choice":"Glossy","from":"Plain","keyword":"Media"}],"choice":"High",)"
              R"("keyword":"Quality","possible":true,"sentence":"High is there."})");
}

TEST(AdviceReport, CallsPossibleWhatIsAvailable)
{
    const QJsonObject report =
        adviceReport({u"A"_s, u"1"_s, Advice::Outcome::Available, {}, u"There."_s});
    EXPECT_TRUE(report["available"_L1].toBool());
    EXPECT_TRUE(report["possible"_L1].toBool());
    EXPECT_TRUE(report["changes"_L1].isArray());
}

TEST(AdviceMessage, ArrivesAsItWasSent)
{
    EXPECT_EQ(adviceOfMessage(adviceMessage(kAdvice)), kAdvice);
    EXPECT_EQ(adviceOfMessage({}), std::nullopt);
}

} // namespace
