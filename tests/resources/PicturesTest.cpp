#include "tests/resources/Places.h"

#include <QtGui/QImage>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QImage picture(const QString &name)
{
    return QImage(bundleResource(name + u".tiff"_s));
}

struct Picture
{
    const char *name;
    QSize size;
};

void PrintTo(const Picture &picture, std::ostream *out)
{
    *out << picture.name;
}

class Pictures : public testing::TestWithParam<Picture>
{};

TEST_P(Pictures, LoadInTheSizeThatThePanelsExpect)
{
    EXPECT_EQ(picture(QLatin1String(GetParam().name)).size(), GetParam().size);
}

INSTANTIATE_TEST_SUITE_P(
    Bundle, Pictures,
    testing::Values(
        // the preview
        Picture{"None", {192, 144}}, Picture{"Natural", {192, 144}}, Picture{"Vivid", {192, 144}},
        // how to load an envelope
        Picture{"QTLark22_Env", {278, 243}}, Picture{"QTLark22_Tray_Env", {278, 243}},
        // beside the media types
        Picture{"Plain", {24, 16}}, Picture{"Inkjet", {24, 16}}, Picture{"VelkaroGlossy", {24, 16}},
        Picture{"VelkaroGlossyR", {24, 16}}, Picture{"VelkaroQM41Matte", {24, 16}},
        Picture{"Glossy", {24, 16}}, Picture{"HagakiAtena", {24, 16}},
        Picture{"HagakiUra", {24, 16}}, Picture{"Transparencies", {24, 16}},
        Picture{"PrintableDisc", {24, 16}}, Picture{"GlossyPrintableDisc", {24, 16}}),
    [](const auto &row) { return row.param.name; });

// The mean distance between the strongest and the weakest channel of a pixel.
double colorfulness(const QImage &image)
{
    double sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            sum += std::max({pixel.red(), pixel.green(), pixel.blue()}) -
                   std::min({pixel.red(), pixel.green(), pixel.blue()});
        }
    }
    return sum / (image.width() * image.height());
}

TEST(PreviewPictures, AreMoreColorfulFromNoneOverNaturalToVivid)
{
    const double none = colorfulness(picture(u"None"_s));
    const double natural = colorfulness(picture(u"Natural"_s));
    const double vivid = colorfulness(picture(u"Vivid"_s));
    EXPECT_GT(natural, none + 5);
    EXPECT_GT(vivid, natural + 5);
}

TEST(MediaPictures, AreTransparentAroundTheirOutline)
{
    EXPECT_EQ(picture(u"PrintableDisc"_s).pixelColor(0, 0).alpha(), 0);
    EXPECT_EQ(picture(u"Plain"_s).pixelColor(0, 8).alpha(), 0);
}

} // namespace
