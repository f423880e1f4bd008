#include "dialog/job/ReservedNames.h"

#include "dialog/host/PPDFile.h"
#include "tests/built/BuiltFiles.h"
#include "tests/endtoend/JobPrinting.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Reserved : public testing::TestWithParam<const char *>
{};

TEST_P(Reserved, IsTheNameAlsoAsAPrintersDefault)
{
    const QString name = QString::fromLatin1(GetParam());
    EXPECT_TRUE(isReservedName(name));
    EXPECT_TRUE(isReservedName(name + u"-default"_s));
}

INSTANTIATE_TEST_SUITE_P(
    Attributes, Reserved,
    testing::Values("attributes-charset", "compression", "copies", "Copies", "document-format",
                    "document-name", "finishings", "ipp-attribute-fidelity", "job-hold-until",
                    "Job-Hold-Until", "job-name", "job-originating-user-name", "job-priority",
                    "job-sheets", "last-document", "media", "media-col", "media-type",
                    "multiple-document-handling", "notify-recipient-uri", "number-up",
                    "orientation-requested", "output-bin", "page-ranges", "print-color-mode",
                    "print-quality", "print-scaling", "printer-resolution", "printer-uri",
                    "requesting-user-name", "sides", "y-side2-image-shift"));

INSTANTIATE_TEST_SUITE_P(OptionsOfCups, Reserved,
                         testing::Values("fit-to-page", "overrides", "page-border", "page-set",
                                         "RAW", "raw", "title"));

class NotReserved : public testing::TestWithParam<const char *>
{};

TEST_P(NotReserved, IsTheName)
{
    EXPECT_FALSE(isReservedName(QString::fromLatin1(GetParam())));
}

INSTANTIATE_TEST_SUITE_P(StandardKeywordsOfPPDs, NotReserved,
                         testing::Values("AdvanceMedia", "Booklet", "Collate", "ColorModel",
                                         "CutMedia", "Duplex", "InputSlot", "ManualFeed",
                                         "MediaColor", "MediaType", "MediaWeight", "MirrorPrint",
                                         "NegativePrint", "OutputBin", "OutputMode", "OutputOrder",
                                         "PageRegion", "PageSize", "Resolution", "Separations",
                                         "Smoothing", "Sorter", "StapleLocation", "TraySwitch",
                                         "cupsPrintQuality"));

INSTANTIATE_TEST_SUITE_P(KeywordsOfMakers, NotReserved,
                         testing::Values("Brightness", "Gamma", "Mirror", "Saturation",
                                         "VKMediaType", "com.velkaro.print.copies"));

TEST(FilterOption, IsReservedAsTheFiltersWriteItAlone)
{
    EXPECT_TRUE(isReservedName(u"outputorder"_s));
    EXPECT_TRUE(isReservedName(u"resolution"_s));
    EXPECT_TRUE(isReservedName(u"fitplot"_s));
    EXPECT_TRUE(isReservedName(u"wrap"_s));
}

TEST(SamplePrinters, HaveNoReservedKeyword)
{
    const QDir folder = QFileInfo(samplePPD(u"velkaro-px-t900"_s)).dir();
    const QStringList names = folder.entryList({u"*.ppd"_s});
    EXPECT_FALSE(names.isEmpty());
    for (const QString &name : names) {
        const auto opened = openPPD(folder.filePath(name));
        ASSERT_TRUE(opened) << opened.sentence().toStdString();
        for (const PPDMark &mark : opened->defaults)
            EXPECT_FALSE(isReservedName(mark.keyword)) << mark.keyword.toStdString();
    }
}

} // namespace
