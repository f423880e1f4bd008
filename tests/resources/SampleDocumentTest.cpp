#include "tests/resources/Places.h"
#include "tests/support/Files.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(SampleDocument, IsASmallPdfOfTwoA4Pages)
{
    const QByteArray document = readFile(sharedFile(u"sample/welcome.pdf"_s));
    EXPECT_TRUE(document.startsWith("%PDF-1."));
    EXPECT_TRUE(document.trimmed().endsWith("%%EOF"));
    EXPECT_LT(document.size(), 200'000);
    EXPECT_TRUE(document.contains("/Count 2"));
    EXPECT_EQ(document.count("/MediaBox [0 0 595"), 2);
}

} // namespace
