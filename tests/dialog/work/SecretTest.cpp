#include "dialog/work/Secret.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sys/prctl.h>

namespace {

TEST(Secret, TakesThePasswordOutOfATextAndClearsItsMemory)
{
    QByteArray bytes("open sesame");
    const QByteArray copy = bytes;
    const Secret secret = Secret::takeFrom(bytes);
    EXPECT_STREQ(secret.text(), "open sesame");
    EXPECT_TRUE(bytes.isEmpty());
    EXPECT_EQ(copy, QByteArray(11, '\0')) << "a copy shares the memory";
    QString text = QStringLiteral("öffne dich").append(QLatin1Char('!'));
    const QString shared = text;
    EXPECT_STREQ(Secret::takeFrom(text).text(), "öffne dich!");
    EXPECT_TRUE(std::ranges::all_of(shared, [](QChar one) { return one.isNull(); }));
}

TEST(Secret, OfALiteralLeavesTheLiteralAlone)
{
    QString literal = QStringLiteral("open sesame");
    EXPECT_STREQ(Secret::takeFrom(literal).text(), "open sesame");
    EXPECT_TRUE(literal.isEmpty());
}

TEST(Secret, OfTheSameTextIsTheSame)
{
    QByteArray one("a");
    QByteArray other("a");
    QByteArray third("b");
    const Secret first = Secret::takeFrom(one);
    EXPECT_EQ(first, Secret::takeFrom(other));
    EXPECT_FALSE(first == Secret::takeFrom(third));
    EXPECT_FALSE(first == Secret());
    EXPECT_EQ(Secret(), Secret());
}

TEST(Secret, LeavesNoCoreDumpUntilTheLastOneHasGone)
{
    ASSERT_EQ(prctl(PR_GET_DUMPABLE), 1);
    {
        QByteArray one("a");
        QByteArray other("b");
        Secret first = Secret::takeFrom(one);
        EXPECT_EQ(prctl(PR_GET_DUMPABLE), 0);
        {
            const Secret copy = first;
            const Secret second = Secret::takeFrom(other);
            first = Secret();
            EXPECT_EQ(prctl(PR_GET_DUMPABLE), 0);
        }
        EXPECT_EQ(prctl(PR_GET_DUMPABLE), 1);
    }
    EXPECT_TRUE(Secret().isNull());
}

} // namespace
