#include "dialog/cups/IppAnswer.h"
#include "dialog/cups/ServerLimits.h"
#include "tests/scriptedserver/IppBytes.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

#include <array>

using namespace Qt::StringLiterals;

namespace {

/// With one of everything.
QByteArray message()
{
    return IppBytes(0x0503)
        .attribute(IPP_TAG_TEXT, "status-message", "Sorry")
        .group(IPP_TAG_PRINTER)
        .attribute(IPP_TAG_NAME, "printer-name", "photo")
        .attribute(IPP_TAG_NAME, {}, "second")
        .integer(IPP_TAG_ENUM, "printer-state", 3)
        .boolean("printer-is-accepting-jobs", true)
        .attribute(IPP_TAG_RANGE, "copies-supported", ippNumber(1, 4) + ippNumber(99, 4))
        .attribute(IPP_TAG_RESOLUTION, "resolution",
                   ippNumber(600, 4) + ippNumber(600, 4) + ippNumber(3, 1))
        .attribute(IPP_TAG_TEXTLANG, "printer-info", QByteArray("\0\2en\0\4text", 10))
        .attribute(IPP_TAG_NOVALUE, "printer-location", {})
        .nested("media-col-default", 3)
        .group(IPP_TAG_PRINTER)
        .attribute(IPP_TAG_NAME, "printer-name", "third")
        .ended();
}

TEST(AnIppAnswer, IsReadWithItsStatusAndText)
{
    const IppAnswer answer = readIppAnswer(message());
    ASSERT_TRUE(answer.ipp);
    EXPECT_EQ(answer.status, 0x0503);
    EXPECT_EQ(answer.text, u"Sorry"_s);
    ipp_attribute_t *name = ippFindAttribute(answer.ipp.get(), "printer-name", IPP_TAG_NAME);
    ASSERT_EQ(ippGetCount(name), 2);
    EXPECT_STREQ(ippGetString(name, 1, nullptr), "second");
}

TEST(AnIppAnswer, CutAnywhereIsNone)
{
    const QByteArray whole = message();
    for (qsizetype length = 0; length < whole.size(); ++length)
        EXPECT_FALSE(readIppAnswer(whole.left(length)).ipp) << length;
}

/// Tags of all kinds, and lengths at their ends.
constexpr std::array kTellingBytes{0x00, 0x01, 0x02, 0x03, 0x04, 0x0F, 0x10, 0x13, 0x21, 0x22, 0x23,
                                   0x30, 0x31, 0x32, 0x33, 0x34, 0x35, 0x36, 0x37, 0x41, 0x42, 0x44,
                                   0x45, 0x47, 0x48, 0x4A, 0x4B, 0x7F, 0x80, 0xFE, 0xFF};

TEST(AnIppAnswer, WithAnyByteChangedIsReadOrIsNone)
{
    const QByteArray whole = message();
    int read = 0;
    for (qsizetype position = 0; position < whole.size(); ++position) {
        for (int byte : kTellingBytes) {
            QByteArray changed = whole;
            changed[position] = static_cast<char>(byte);
            read += readIppAnswer(changed).ipp ? 1 : 0;
        }
    }
    // Most changes are of texts and numbers.
    EXPECT_GT(read, 0);
    EXPECT_LT(read, whole.size() * static_cast<int>(kTellingBytes.size()));
}

TEST(AnIppAnswer, MayNestCollectionsToTheLimit)
{
    const auto nested = [](int depth) {
        return IppBytes().group(IPP_TAG_JOB).nested("media-col", depth).ended();
    };
    EXPECT_TRUE(isWholeMessage(nested(kDeepestCollection)));
    EXPECT_TRUE(readIppAnswer(nested(kDeepestCollection)).ipp);
    EXPECT_FALSE(isWholeMessage(nested(kDeepestCollection + 1)));
    EXPECT_FALSE(isWholeMessage(nested(100'000)));
}

TEST(AnIppAnswer, MayHaveValuesToTheLimit)
{
    const auto values = [](int count) {
        QByteArray bytes = IppBytes().cut().left(8) + ippNumber(IPP_TAG_JOB, 1);
        bytes += QByteArray("\x44\0\1x\0\1y", 7);
        bytes += QByteArray("\x44\0\0\0\1y", 6).repeated(count - 1);
        return bytes + '\3';
    };
    EXPECT_TRUE(isWholeMessage(values(kMostValues)));
    EXPECT_FALSE(isWholeMessage(values(kMostValues + 1)));
}

TEST(AnIppAnswer, EndsNoCollectionThatHasNotBegun)
{
    EXPECT_FALSE(isWholeMessage(
        IppBytes().group(IPP_TAG_JOB).attribute(IPP_TAG_END_COLLECTION, {}, {}).ended()));
    EXPECT_FALSE(isWholeMessage(
        IppBytes().group(IPP_TAG_JOB).attribute(IPP_TAG_BEGIN_COLLECTION, "x", {}).ended()));
    EXPECT_FALSE(isWholeMessage(IppBytes()
                                    .group(IPP_TAG_JOB)
                                    .attribute(IPP_TAG_BEGIN_COLLECTION, "x", {})
                                    .group(IPP_TAG_PRINTER)
                                    .attribute(IPP_TAG_END_COLLECTION, {}, {})
                                    .ended()));
}

} // namespace
