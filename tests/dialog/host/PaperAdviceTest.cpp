#include "dialog/host/PaperAdvice.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QList<PaperAdvice> adviceIn(const char *entry)
{
    return paperAdvice(QJsonDocument::fromJson(entry).array().toVariantList());
}

TEST(PaperAdvice, IsForThePapersOfItsPatterns)
{
    const QList<PaperAdvice> all =
        adviceIn(R"([{"Papers": ["Env*", "Card"], "Keyword": "Tray", "Choice": "Rear"}])");
    ASSERT_EQ(all.size(), 1);
    EXPECT_EQ(all[0].keyword, u"Tray"_s);
    EXPECT_EQ(all[0].choice, u"Rear"_s);
    for (const QString &paper : {u"EnvDL"_s, u"EnvChou3"_s, u"Card"_s})
        EXPECT_TRUE(all[0].isFor(paper)) << paper.toStdString();
    for (const QString &paper : {u"A4"_s, u"envDL"_s, u"Cards"_s, u"MyEnv"_s, QString()})
        EXPECT_FALSE(all[0].isFor(paper)) << paper.toStdString();
}

TEST(PaperAdvice, IsLeftOutWhereItHasNotItsForm)
{
    for (const char *entry :
         {R"([])", R"({})", R"([7])", R"([{}])", R"([{"Papers": ["A4"], "Keyword": "Tray"}])",
          R"([{"Papers": [], "Keyword": "Tray", "Choice": "Rear"}])"})
        EXPECT_TRUE(adviceIn(entry).isEmpty()) << entry;
}

} // namespace
