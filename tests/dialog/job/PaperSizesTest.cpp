#include "dialog/job/PaperSizes.h"
#include "dialog/host/PPDFile.h"
#include "dialog/job/Papers.h"
#include "tests/support/CaseName.h"
#include "tests/support/PPDSource.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct ListedPaper
{
    QByteArray name;
    QByteArray text;
    int width;
    int margin;
};

/// A printer with these papers, all of them 800 points high.
PPDHandle printerWith(const QList<ListedPaper> &papers)
{
    const auto lines = [&](const QByteArray &keyword, const auto &value) {
        QByteArray all;
        for (const ListedPaper &paper : papers)
            all += '*' + keyword + ' ' + paper.name + '/' + paper.text + ": \"" + value(paper) +
                   "\"\n";
        return all;
    };
    const auto size = [](const ListedPaper &paper) {
        return QByteArray::number(paper.width) + " 800";
    };
    const auto area = [](const ListedPaper &paper) {
        const QByteArray margin = QByteArray::number(paper.margin);
        return margin + ' ' + margin + ' ' + QByteArray::number(paper.width - paper.margin) + ' ' +
               QByteArray::number(800 - paper.margin);
    };
    return openText(PPDSource().text() + "*OpenUI *PageSize/Size: PickOne\n*DefaultPageSize: " +
                    papers[0].name + '\n' + lines("PageSize", [](const auto &) { return ""; }) +
                    "*CloseUI: *PageSize\n*OpenUI *PageRegion/Size: PickOne\n*DefaultPageRegion: " +
                    papers[0].name + '\n' + lines("PageRegion", [](const auto &) { return ""; }) +
                    "*CloseUI: *PageRegion\n*DefaultImageableArea: " + papers[0].name +
                    "\n*DefaultPaperDimension: " + papers[0].name + '\n' +
                    lines("ImageableArea", area) + lines("PaperDimension", size));
}

/// "CHOICE", or "CHOICE+BORDERLESS", of each size.
QStringList namesOf(const QList<PaperSize> &sizes)
{
    QStringList names;
    for (const PaperSize &size : sizes)
        names += size.borderless.isNull() ? size.choice : size.choice + u'+' + size.borderless;
    return names;
}

TEST(PaperSizes, AreOneWithTheirBorderlessForm)
{
    const PPDHandle ppd = printerWith({{"One", "One", 500, 9},
                                       {"One.Fullbleed", "One (Borderless)", 500, 0},
                                       {"Two.FB", "Two", 510, 0},
                                       {"Two", "Two", 510, 9},
                                       {"3.5x5", "Three", 252, 9},
                                       {"3.5x5.borderless", "Three, to the edges", 252, 0}});
    EXPECT_EQ(namesOf(paperSizes(ppd.get())),
              (QStringList{u"One+One.Fullbleed"_s, u"Two+Two.FB"_s, u"3.5x5+3.5x5.borderless"_s}));
}

TEST(PaperSizes, AreNotOneForEqualTextsOrMeasures)
{
    const PPDHandle ppd = printerWith({{"One", "Same", 500, 9},
                                       {"Other", "Same", 500, 0},
                                       {"One.Wide", "One", 500, 0},
                                       {"One_B", "One", 500, 0}});
    EXPECT_EQ(namesOf(paperSizes(ppd.get())),
              (QStringList{u"One"_s, u"Other"_s, u"One.Wide"_s, u"One_B"_s}));
}

TEST(PaperSizes, AreNotOneWhereTheBorderlessFormHasMarginsOrTheOtherNone)
{
    const PPDHandle ppd = printerWith({{"One", "One", 500, 9},
                                       {"One.Fullbleed", "One", 500, 3},
                                       {"Two", "Two", 510, 0},
                                       {"Two.Fullbleed", "Two", 510, 0},
                                       {"Three.Fullbleed", "Three", 520, 0}});
    EXPECT_EQ(namesOf(paperSizes(ppd.get())),
              (QStringList{u"One"_s, u"Two"_s, u"One.Fullbleed"_s, u"Two.Fullbleed"_s,
                           u"Three.Fullbleed"_s}));
}

TEST(PaperSizes, AreFoundByEitherForm)
{
    const QList<PaperSize> sizes{{u"A4"_s, u"A4.FB"_s, {}}, {u"A3"_s, {}, {}}};
    EXPECT_EQ(indexOfSize(sizes, u"A4.FB"_s), 0);
    EXPECT_EQ(indexOfSize(sizes, u"A3"_s), 1);
    EXPECT_EQ(indexOfSize(sizes, u"A5"_s), -1);
    EXPECT_EQ(indexOfSize(sizes, QString()), -1);
}

TEST(PaperSizes, OfTheSamplePrinterHaveEveryPaperOnce)
{
    const PPDHandle ppd = openSample(u"velkaro-px-t900"_s);
    const ppd_option_t *option = ppdFindOption(ppd.get(), "PageSize");
    int found = 0;
    int withTwin = 0;
    const QList<PaperSize> sizes = paperSizes(ppd.get());
    for (int index = 0; index < option->num_choices; ++index)
        found += indexOfSize(sizes, QString::fromUtf8(option->choices[index].choice)) >= 0 ? 1 : 0;
    for (const PaperSize &size : sizes)
        withTwin += size.borderless.isNull() ? 0 : 1;
    EXPECT_EQ(found, option->num_choices - 1) << "all but the custom one";
    EXPECT_EQ(sizes.size() + withTwin, found);
    EXPECT_EQ(withTwin, 11);
    EXPECT_EQ(paperSizes(nullptr).size(), 0);
}

TEST(PaperSizes, AreMeasuredAsInTheCountry)
{
    EXPECT_EQ(measureText(595, 842, QLocale::MetricSystem), u"210 × 297 mm"_s);
    EXPECT_EQ(measureText(612, 792, QLocale::ImperialUSSystem), u"8.5 × 11 in"_s);
    EXPECT_EQ(measureText(252, 360, QLocale::ImperialUSSystem), u"3.5 × 5 in"_s);
}

constexpr QSizeF kOfThePoints(0, 0);

/// A paper as PPDs have it, and as people know it.
struct MeantPaper
{
    const char *behaviour;
    QSizeF points;
    QSizeF millimetres; ///< kOfThePoints: no other ones
    QString ownSize;    ///< as it is sent
};

class MeantSize : public testing::TestWithParam<MeantPaper>
{};

TEST_P(MeantSize, IsThatOfTheSheetInMillimetresOrInches)
{
    constexpr double kMillimetre = 72 / 25.4;
    const QSizeF meant = meantSize(GetParam().points);
    const QSizeF expected = GetParam().millimetres == kOfThePoints
                                ? GetParam().points
                                : GetParam().millimetres * kMillimetre;
    EXPECT_DOUBLE_EQ(meant.width(), expected.width());
    EXPECT_DOUBLE_EQ(meant.height(), expected.height());
    EXPECT_EQ(meantSize(meant), meant);
    const PMPaper own = customPaper(meant.width(), meant.height());
    EXPECT_EQ(own.name, GetParam().ownSize);
    const PMPaper parsed = parseCustomPaper(own.name).value_or(PMPaper());
    EXPECT_NEAR(parsed.width, expected.width(), 0.005);
    EXPECT_NEAR(parsed.height, expected.height(), 0.005);
}

INSTANTIATE_TEST_SUITE_P(
    Table, MeantSize,
    testing::Values(
        // Metric, rounded to whole points in one way or another:
        MeantPaper{"A3", {842, 1191}, {297, 420}, u"Custom.841.89x1190.55"_s},
        MeantPaper{"A4", {595, 842}, {210, 297}, u"Custom.595.28x841.89"_s},
        MeantPaper{"A4Upwards", {596, 842}, {210, 297}, u"Custom.595.28x841.89"_s},
        MeantPaper{"A4Exact", {595.276, 841.89}, {210, 297}, u"Custom.595.28x841.89"_s},
        MeantPaper{"A5", {420, 595}, {148, 210}, u"Custom.419.53x595.28"_s},
        MeantPaper{"A6", {297, 420}, {105, 148}, u"Custom.297.64x419.53"_s},
        MeantPaper{"B4", {729, 1032}, {257, 364}, u"Custom.728.5x1031.81"_s},
        MeantPaper{"B5", {516, 729}, {182, 257}, u"Custom.515.91x728.5"_s},
        MeantPaper{"Postcard", {284, 419}, {100, 148}, u"Custom.283.46x419.53"_s},
        MeantPaper{"EnvDL", {312, 624}, {110, 220}, u"Custom.311.81x623.62"_s},
        MeantPaper{"EnvC5", {459, 649}, {162, 229}, u"Custom.459.21x649.13"_s},
        // In inches:
        MeantPaper{"Letter", {612, 792}, kOfThePoints, u"Custom.612x792"_s},
        MeantPaper{"Legal", {612, 1008}, kOfThePoints, u"Custom.612x1008"_s},
        MeantPaper{"Tabloid", {792, 1224}, kOfThePoints, u"Custom.792x1224"_s},
        MeantPaper{"Executive", {522, 756}, kOfThePoints, u"Custom.522x756"_s},
        MeantPaper{"FourBySix", {288, 432}, kOfThePoints, u"Custom.288x432"_s},
        MeantPaper{"FiveBySeven", {360, 504}, kOfThePoints, u"Custom.360x504"_s},
        MeantPaper{"Env10", {297, 684}, kOfThePoints, u"Custom.297x684"_s},
        // Neither:
        MeantPaper{"Other", {300, 500}, kOfThePoints, u"Custom.300x500"_s}),
    CaseName());

} // namespace
