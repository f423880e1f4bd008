#include "platform/imaging/CIImage.h"
#include "tests/imaging/TestFile.h"
#include "tests/imaging/TestPictures.h"
#include "tests/imaging/TiffBuilder.h"

#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/stat.h>

namespace {

std::shared_ptr<const CIImage> imageOf(const QByteArray &contents)
{
    return CIImage::imageWithContentsOfFile(TestFile(contents).path());
}

TiffBuilder small()
{
    return TiffBuilder::grey(4, 4, QByteArray(16, 'g'));
}

using Tag = TiffBuilder::Tag;

struct HostileCase
{
    const char *name;
    QByteArray contents;
};

std::vector<HostileCase> hostileFiles()
{
    return {
        // No picture at all.
        {"Empty", {}},
        {"Text", "This is no picture.\n"},
        {"HeaderAlone", QByteArray("II*\0\x08\0\0\0", 8)},
        {"DirectoryBeyondTheEnd", QByteArray("II*\0\xff\xff\xff\x7f", 8)},
        {"PngSignatureAlone", "\x89PNG\r\n\x1a\n"},
        {"Svg", "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>"},
        // Sizes that are not there.
        {"NoWidth", small().set(Tag::ImageWidth, {0}).file()},
        {"NoHeight", small().set(Tag::ImageLength, {0}).file()},
        {"WidthMissing", small().remove(Tag::ImageWidth).file()},
        {"NegativeWidth", small().set(Tag::ImageWidth, {0xffffffff}).file()},
        {"MorePixelsThanNumbersHold",
         small().set(Tag::ImageWidth, {0x7fffffff}).set(Tag::ImageLength, {0x7fffffff}).file()},
        {"AreaOverflowsTo32Bits",
         small().set(Tag::ImageWidth, {65536}).set(Tag::ImageLength, {65536}).file()},
        {"ManyPixelsClaimed",
         small().set(Tag::ImageWidth, {11000}).set(Tag::ImageLength, {11000}).file()},
        {"MoreRowsThanInTheFile", small().set(Tag::ImageLength, {9}).file()},
        // Strips and tiles that are not there.
        {"StripBeyondTheEnd", small().set(Tag::StripOffsets, {100000}).file()},
        {"StripAtTheLastByte", small().set(Tag::StripOffsets, {0xffffffff}).file()},
        {"StripsMissing", small().remove(Tag::StripOffsets).remove(Tag::StripByteCounts).file()},
        {"TileOfHalfTheMemory", small()
                                    .remove(Tag::StripOffsets)
                                    .remove(Tag::StripByteCounts)
                                    .remove(Tag::RowsPerStrip)
                                    .set(Tag::TileWidth, {0x10000})
                                    .set(Tag::TileLength, {0x7ff0})
                                    .set(Tag::TileOffsets, {TiffBuilder::kPixelOffset})
                                    .set(Tag::TileByteCounts, {16})
                                    .file()},
        {"TileOfNoWidth", small()
                              .remove(Tag::StripOffsets)
                              .remove(Tag::StripByteCounts)
                              .set(Tag::TileWidth, {0})
                              .set(Tag::TileLength, {16})
                              .set(Tag::TileOffsets, {TiffBuilder::kPixelOffset})
                              .set(Tag::TileByteCounts, {16})
                              .file()},
        // Samples that nobody has.
        {"BitsOfNoType", small().set(Tag::BitsPerSample, {255}).file()},
        {"ManySamples", small().set(Tag::SamplesPerPixel, {65535}).file()},
        {"UnknownCompression", small().set(Tag::Compression, {4711}).file()},
    };
}

class HostileFiles : public testing::TestWithParam<HostileCase>
{};

/// The most memory that the process has had at any time, in KiB.
long peakMemory()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

} // namespace

TEST_P(HostileFiles, GiveNoPictureAndTakeNoMemory)
{
    const long before = peakMemory();
    EXPECT_EQ(imageOf(GetParam().contents), nullptr);
    EXPECT_LT(peakMemory() - before, 64 * 1024);
}

INSTANTIATE_TEST_SUITE_P(Imaging, HostileFiles, testing::ValuesIn(hostileFiles()),
                         [](const auto &test) { return test.param.name; });

// What makes the cases above fail is the one field that each changes.
TEST(HostileFile, TheUnchangedFileIsReadable)
{
    EXPECT_TRUE(imageOf(small().file()));
}

TEST(HostileFile, ADirectoryThatNamesItselfAsTheNextIsReadOnce)
{
    const auto image = imageOf(small().setNext(8).file());
    ASSERT_TRUE(image);
    EXPECT_EQ(image->extent(), QRect(0, 0, 4, 4));
}

TEST(HostileFile, CutShortAnywhereGivesNoPicture)
{
    struct Kind
    {
        const char *format;
        int compression;
    };
    for (const Kind kind : {Kind{"tiff", 0}, Kind{"tiff", 1}, Kind{"png", 50}}) {
        const QByteArray whole =
            TestFile(noise({64, 64}, QImage::Format_RGB32), kind.format, kind.compression)
                .contents();
        ASSERT_TRUE(imageOf(whole));
        for (int sixteenth = 0; sixteenth < 16; ++sixteenth)
            EXPECT_EQ(imageOf(whole.left(whole.size() * sixteenth / 16)), nullptr)
                << kind.format << kind.compression << " cut to " << sixteenth << "/16";
    }
}

TEST(HostileFile, WithAnyByteChangedGivesAPictureWithinTheBoundsOrNone)
{
    for (const int compression : {0, 1}) {
        const QByteArray whole =
            TestFile(noise({9, 7}, QImage::Format_ARGB32), "tiff", compression).contents();
        TestFile file(whole);
        for (qsizetype place = 0; place < whole.size(); ++place) {
            for (const char change : {'\x01', '\x80', '\xff'}) {
                QByteArray damaged = whole;
                damaged[place] = char(damaged[place] ^ change);
                file.replace(damaged);
                const auto image = CIImage::imageWithContentsOfFile(file.path());
                const QSize size = image ? image->extent().size() : QSize(0, 0);
                EXPECT_LE(qint64(size.width()) * size.height(), qint64(1) << 27);
            }
        }
    }
}

TEST(HostilePath, ThatIsNoFileGivesNoPictureAndDoesNotWait)
{
    const QTemporaryDir folder;
    const QString pipe = folder.filePath(QStringLiteral("pipe"));
    ASSERT_EQ(mkfifo(qPrintable(pipe), 0600), 0);
    for (const QString &path :
         {QString(), QStringLiteral(""), folder.path(), pipe, QStringLiteral("/dev/zero"),
          folder.filePath(QStringLiteral("missing.tiff"))})
        EXPECT_EQ(CIImage::imageWithContentsOfFile(path), nullptr) << qPrintable(path);
}
