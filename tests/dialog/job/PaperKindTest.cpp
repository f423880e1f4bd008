#include "dialog/job/PaperKind.h"
#include "tests/support/CaseName.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Paper
{
    const char *behaviour;
    QString choice;
    double width; ///< points
    double height;
    PaperKind kind;
};

class KindOfPaper : public testing::TestWithParam<Paper>
{};

TEST_P(KindOfPaper, IsWhatAPersonTakesItFor)
{
    const Paper &paper = GetParam();
    EXPECT_EQ(paperKind(paper.choice, paper.width, paper.height), paper.kind);
}

INSTANTIATE_TEST_SUITE_P(
    Standard, KindOfPaper,
    testing::Values(Paper{"A4", u"A4"_s, 595, 842, PaperKind::Standard},
                    Paper{"Letter", u"Letter"_s, 612, 792, PaperKind::Standard},
                    Paper{"A6", u"A6"_s, 297, 420, PaperKind::Standard},
                    Paper{"NobodysName", u"PlainLarge"_s, 842, 1191, PaperKind::Standard},
                    Paper{"NobodysSize", u"Banner"_s, 600, 3000, PaperKind::Standard},
                    Paper{"Chinese16K", u"PRC16K"_s, 414, 610, PaperKind::Standard}),
    CaseName());

INSTANTIATE_TEST_SUITE_P(
    Photo, KindOfPaper,
    testing::Values(Paper{"FourBySix", u"4x6"_s, 288, 432, PaperKind::Photo},
                    Paper{"FourBySixLying", u"PhotoWide"_s, 432, 288, PaperKind::Photo},
                    Paper{"FourBySixBySize", u"KG"_s, 288, 432, PaperKind::Photo},
                    Paper{"ThreeAndAHalfByFive", u"3.5x5"_s, 252, 360, PaperKind::Photo},
                    Paper{"EightByTen", u"8x10"_s, 576, 720, PaperKind::Photo},
                    Paper{"SelfDescribing", u"na_5x7_5x7in"_s, 360, 504, PaperKind::Photo},
                    Paper{"TenByFifteen", u"om_small-photo_100x150mm"_s, 283, 425,
                          PaperKind::Photo}),
    CaseName());

INSTANTIATE_TEST_SUITE_P(
    EnvelopeOrCard, KindOfPaper,
    testing::Values(Paper{"Com10", u"Env10"_s, 297, 684, PaperKind::EnvelopeOrCard},
                    Paper{"Com10BySize", u"Business"_s, 297, 684, PaperKind::EnvelopeOrCard},
                    Paper{"C5", u"EnvC5"_s, 459, 649, PaperKind::EnvelopeOrCard},
                    Paper{"SelfDescribing", u"iso_dl_110x220mm"_s, 312, 624,
                          PaperKind::EnvelopeOrCard},
                    Paper{"OfNobodysSize", u"EnvOdd"_s, 300, 300, PaperKind::EnvelopeOrCard},
                    Paper{"Postcard", u"Postcard"_s, 284, 419, PaperKind::EnvelopeOrCard},
                    Paper{"DoublePostcardLying", u"Reply"_s, 567, 420, PaperKind::EnvelopeOrCard}),
    CaseName());

INSTANTIATE_TEST_SUITE_P(Disc, KindOfPaper,
                         testing::Values(Paper{"Large", u"120x120mm"_s, 340, 340, PaperKind::Disc},
                                         Paper{"Small", u"Mini"_s, 227, 227, PaperKind::Disc},
                                         Paper{"NotASquarePhoto", u"Square"_s, 360, 360,
                                               PaperKind::Standard}),
                         CaseName());

} // namespace
