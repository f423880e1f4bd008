#include "dialog/cups/LoadedMedia.h"
#include "dialog/cups/IppAnswer.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A tray as IPP has it, in hundredths of a millimetre; null source: none is told.
struct Tray
{
    const char *source;
    int width;
    int height;
};

struct Trays
{
    const char *behaviour;
    std::vector<const char *> names; ///< media-ready
    std::vector<Tray> trays;         ///< media-col-ready
    bool isOfCups;
    QStringList loaded; ///< "source width x height" in points
};

void PrintTo(const Trays &row, std::ostream *out)
{
    *out << row.behaviour;
}

IppHandle collectionOf(const Tray &tray)
{
    const IppHandle size(ippNew());
    ippAddInteger(size.get(), IPP_TAG_ZERO, IPP_TAG_INTEGER, "x-dimension", tray.width);
    if (tray.height != 0)
        ippAddInteger(size.get(), IPP_TAG_ZERO, IPP_TAG_INTEGER, "y-dimension", tray.height);
    else // of a roll
        ippAddRange(size.get(), IPP_TAG_ZERO, "y-dimension", 10000, 300000);
    IppHandle made(ippNew());
    ippAddCollection(made.get(), IPP_TAG_ZERO, "media-size", size.get());
    if (tray.source)
        ippAddString(made.get(), IPP_TAG_ZERO, IPP_TAG_KEYWORD, "media-source", nullptr,
                     tray.source);
    return made;
}

IppHandle printerWith(const Trays &row)
{
    IppHandle printer(ippNew());
    if (!row.names.empty())
        ippAddStrings(printer.get(), IPP_TAG_PRINTER, IPP_TAG_KEYWORD, "media-ready",
                      static_cast<int>(row.names.size()), nullptr, row.names.data());
    std::vector<IppHandle> trays;
    std::vector<const ipp_t *> all;
    for (const Tray &tray : row.trays) {
        trays.push_back(collectionOf(tray));
        all.push_back(trays.back().get());
    }
    if (!all.empty())
        ippAddCollections(printer.get(), IPP_TAG_PRINTER, "media-col-ready",
                          static_cast<int>(all.size()), all.data());
    if (row.isOfCups)
        ippAddString(printer.get(), IPP_TAG_PRINTER, IPP_TAG_TEXT, "cups-version", nullptr,
                     "2.4.2");
    return printer;
}

class LoadedMedia : public testing::TestWithParam<Trays>
{};

TEST_P(LoadedMedia, AreWhatThePrinterTells)
{
    QStringList loaded;
    for (const LoadedMedium &medium : loadedMediaOf(printerWith(GetParam()).get()))
        loaded +=
            u"%1 %2 x %3"_s.arg(medium.source).arg(qRound(medium.width)).arg(qRound(medium.height));
    EXPECT_EQ(loaded, GetParam().loaded);
}

INSTANTIATE_TEST_SUITE_P(
    Table, LoadedMedia,
    testing::Values(
        Trays{"Nothing", {}, {}, false, {}},
        Trays{"Names",
              {"iso_a4_210x297mm", "na_index-4x6_4x6in"},
              {},
              false,
              {u" 595 x 842"_s, u" 288 x 432"_s}},
        Trays{"NamesOfPPDs", {"A4", "Letter"}, {}, false, {u" 595 x 842"_s, u" 612 x 792"_s}},
        Trays{"TraysRatherThanNames",
              {"na_letter_8.5x11in"},
              {{"tray-1", 21000, 29700}, {nullptr, 10000, 14800}},
              false,
              {u"tray-1 595 x 842"_s, u" 283 x 420"_s}},
        Trays{"TraysThatAServerHandsOn",
              {"na_letter_8.5x11in"},
              {{"tray-1", 21000, 29700}},
              true,
              {u"tray-1 595 x 842"_s}},
        Trays{"AServersOwnListOfSizes", {"iso_a4_210x297mm"}, {{nullptr, 21000, 29700}}, true, {}},
        Trays{"AServersOwnListOfNames", {"iso_a4_210x297mm"}, {}, true, {}},
        Trays{"ANameThatSaysNoSize", {"iso_a4_210x297mm", "whatever"}, {}, false, {}},
        Trays{"ARollAmongThem", {}, {{"tray-1", 21000, 29700}, {"roll", 21000, 0}}, false, {}},
        Trays{"ASizeBelowZero", {}, {{"tray-1", -21000, 29700}}, false, {}}),
    CaseName());

const QList<LoadedMedium> kTwoTrays{{u"tray-1"_s, 595, 842}, {u"photo"_s, 288, 432}};

struct Wanted
{
    const char *behaviour;
    QString slot;
    double width;
    double height;
    bool isLoaded;
};

class Sheet : public testing::TestWithParam<Wanted>
{};

TEST_P(Sheet, IsLookedForInItsTray)
{
    const auto [behaviour, slot, width, height, isThere] = GetParam();
    EXPECT_EQ(isLoaded(mediaIn(kTwoTrays, slot), width, height), isThere);
}

INSTANTIATE_TEST_SUITE_P(Table, Sheet,
                         testing::Values(Wanted{"Anywhere", {}, 288, 432, true},
                                         Wanted{"AnywhereAndNotThere", {}, 420, 595, false},
                                         Wanted{"TheOtherWayRound", {}, 842, 595, true},
                                         Wanted{"RoundedByAPPD", {}, 594, 843, true},
                                         Wanted{"InItsTray", u"Tray1"_s, 595, 842, true},
                                         Wanted{"InAnotherTray", u"Tray1"_s, 288, 432, false},
                                         Wanted{"InATrayThatIsNotTold", u"Auto"_s, 288, 432, true}),
                         CaseName());

} // namespace
