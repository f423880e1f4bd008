#include "printsettings/rules/BorderlessMedia.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Corrected
{
    QString mediaType;
    QString quality;
    QString paperName;
    BorderlessCorrection correction;
};

class BorderlessMedium : public testing::TestWithParam<Corrected>
{};

TEST_P(BorderlessMedium, IsCorrected)
{
    const Corrected &row = GetParam();
    EXPECT_EQ(borderlessCorrection(row.mediaType, row.quality, row.paperName), row.correction)
        << qPrintable(row.mediaType + u'/' + row.quality + u' ' + row.paperName);
}

const BorderlessCorrection kToPlain{u"Plain"_s, u"Plain"_s, u"ON"_s, true};
const BorderlessCorrection kToDefaultQuality{{}, u"Plain"_s, {}, false};
const BorderlessCorrection kStays{};

INSTANTIATE_TEST_SUITE_P(
    All, BorderlessMedium,
    testing::Values(
        // Transparencies, whatever else.
        Corrected{u"Transparencies"_s, u"Normal"_s, u"A4.Fullbleed"_s, kToPlain},
        Corrected{u"Transparencies"_s, u"PlainFast"_s, u"A3.Fullbleed"_s, kToPlain},
        Corrected{u"Transparencies"_s, QString(), QString(), kToPlain},
        // Plain paper: on A3 always, elsewhere only at its fastest.
        Corrected{u"Plain"_s, u"PlainFast"_s, u"A4.Fullbleed"_s, kToDefaultQuality},
        Corrected{u"PlainDuplex"_s, u"PlainFast"_s, u"VkHagaki_B"_s, kToDefaultQuality},
        Corrected{u"HagakiAtena"_s, u"PlainFast"_s, u"Letter.Fullbleed"_s, kToDefaultQuality},
        Corrected{u"Plain"_s, u"PlainNormal"_s, u"A4.Fullbleed"_s, kStays},
        Corrected{u"Plain"_s, u"High"_s, u"A4.Fullbleed"_s, kStays},
        Corrected{u"Plain"_s, u"High"_s, u"A3.Fullbleed"_s, kToDefaultQuality},
        Corrected{u"Plain"_s, u"Best"_s, u"A3.Fullbleed"_s, kToDefaultQuality},
        Corrected{u"HagakiAtena"_s, u"Best"_s, u"VkA3_B"_s, kToDefaultQuality},
        // Everything else stays.
        Corrected{u"Glossy"_s, u"Fast"_s, u"A3.Fullbleed"_s, kStays},
        Corrected{u"Inkjet"_s, u"PlainFast"_s, u"A4.Fullbleed"_s, kStays},
        Corrected{u"PrintableDisc"_s, u"DiscSlow"_s, u"A4.Fullbleed"_s, kStays},
        Corrected{u"transparencies"_s, u"Normal"_s, u"A4.Fullbleed"_s, kStays},
        Corrected{QString(), u"PlainFast"_s, u"A3.Fullbleed"_s, kStays}));

} // namespace
