#include "dialog/host/PPDFile.h"
#include "dialog/host/PPDLimits.h"
#include "platform/ppd/PPDText.h"
#include "tests/support/Files.h"
#include "tests/support/QStringPrinting.h"
#include "tests/support/SmallPrinter.h"

#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// What gzip makes of the bytes.
QByteArray packed(const QByteArray &bytes)
{
    QProcess gzip;
    gzip.start(u"gzip"_s, {u"-c"_s});
    EXPECT_TRUE(gzip.waitForStarted());
    gzip.write(bytes);
    gzip.closeWriteChannel();
    EXPECT_TRUE(gzip.waitForFinished());
    return gzip.readAllStandardOutput();
}

class PackedPPD : public testing::Test
{
protected:
    Result<OpenedPPD> open(const QByteArray &bytes)
    {
        writeFile(m_path, bytes);
        return openPPD(m_path);
    }

    QString error(const QByteArray &bytes)
    {
        return open(bytes).sentence().replace(m_path, u"FILE"_s);
    }

private:
    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(u"the.ppd.gz"_s);
};

TEST_F(PackedPPD, IsOpened)
{
    const auto opened = open(packed(smallPrinter().text()));
    ASSERT_TRUE(opened) << opened.sentence().toStdString();
    EXPECT_EQ(markedChoice(opened->ppd.get(), u"Finish"_s), u"Matt"_s);
}

TEST_F(PackedPPD, MayBePackedInParts)
{
    const QByteArray text = smallPrinter().text();
    const qsizetype half = text.indexOf("*OpenUI *Finish");
    const auto opened = open(packed(text.left(half)) + packed(text.mid(half)));
    ASSERT_TRUE(opened) << opened.sentence().toStdString();
    EXPECT_EQ(markedChoice(opened->ppd.get(), u"Finish"_s), u"Matt"_s);
}

TEST_F(PackedPPD, MayBeFollowedByPadding)
{
    EXPECT_TRUE(open(packed(smallPrinter().text()) + QByteArray(512, '\0')));
}

TEST_F(PackedPPD, IsAsLongAsAnyOtherMayBe)
{
    const QByteArray text = smallPrinter().text();
    const QByteArray fill(kLargestPPD - text.size(), '\n');
    EXPECT_EQ(error(packed(text + fill)),
              u"The PPD file FILE cannot be used: it has more than 60000 lines."_s);
    EXPECT_EQ(error(packed(text + fill + '\n')),
              u"The PPD file FILE is too large: it has more than 4194304 bytes."_s);
}

TEST_F(PackedPPD, ThatUnpacksToFarMoreThanItHasIsTooLarge)
{
    QByteArray bomb;
    const QByteArray part = packed(QByteArray(64LL * 1024 * 1024, '\n'));
    for (int count = 0; count < 16; ++count)
        bomb += part;
    EXPECT_EQ(error(bomb), u"The PPD file FILE is too large: it has more than 4194304 bytes."_s);
}

TEST_F(PackedPPD, ThatIsCutOffIsIncomplete)
{
    const QString incomplete =
        u"The PPD file FILE is incomplete: it ends too early. Get it again."_s;
    const QByteArray whole = packed(smallPrinter().text());
    for (const qsizetype length : {qsizetype(2), qsizetype(12), whole.size() / 2, whole.size() - 1})
        EXPECT_EQ(error(whole.left(length)), incomplete) << length;
    const QByteArray text = smallPrinter().text();
    EXPECT_EQ(error(packed(text.left(text.indexOf("Shiny")))), incomplete);
}

TEST_F(PackedPPD, ThatIsDamagedIsSaidToBe)
{
    QByteArray bytes = packed(smallPrinter().text());
    bytes[bytes.size() - 6] = static_cast<char>(~bytes[bytes.size() - 6]); // of the checksum
    EXPECT_EQ(error(bytes),
              u"The PPD file FILE is damaged: it cannot be unpacked. Get it again."_s);
}

TEST_F(PackedPPD, PackedTwiceIsNone)
{
    EXPECT_EQ(error(packed(packed(smallPrinter().text()))), u"FILE is not a PPD file."_s);
}

TEST_F(PackedPPD, IsCountedUnpacked)
{
    QByteArray text = smallPrinter().text();
    for (int index = 0; index < 1'000; ++index)
        text += "*OpenUI *O: PickOne\n*O a: \"\"\n*CloseUI: *O\n";
    EXPECT_EQ(error(packed(text)),
              u"The PPD file FILE cannot be used: it has more than 1000 options."_s);
}

} // namespace
