#include "printsettings/rules/DiscMedia.h"

#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// One step a line: "+" enables, "-" disables, "!" selects the default afterwards.
QStringList words(const std::vector<MediaChange> &changes)
{
    QStringList lines;
    for (const MediaChange &change : changes)
        lines << (change.enable ? u"+"_s : u"-"_s) + (change.applyDefault ? u"! "_s : u" "_s) +
                     change.media.join(u' ');
    return lines;
}

const QString kConstrainedOthers = u"Plain PlainDuplex Inkjet VelkaroGlossyR VelkaroQM41Matte "
                                   "Glossy HagakiAtena HagakiUra"_s;
const QString kShownOthers = u"Plain Inkjet Transparencies VelkaroGlossyR VelkaroQM41Matte Glossy "
                             "HagakiAtena HagakiUra"_s;

TEST(ConstrainedMedia, OnADiscAreTheDiscAlone)
{
    EXPECT_EQ(words(constrainedMedia(true)),
              QStringList({u"+! PrintableDisc"_s, u"- "_s + kConstrainedOthers}));
}

TEST(ConstrainedMedia, OnOtherPaperAreAllButTheDisc)
{
    EXPECT_EQ(words(constrainedMedia(false)),
              QStringList({u"- PrintableDisc"_s, u"+! "_s + kConstrainedOthers}));
}

TEST(ShownMedia, OnADiscAreBothDiscsAlone)
{
    for (const bool borderless : {false, true})
        EXPECT_EQ(words(shownMedia(true, borderless)),
                  QStringList({u"- Transparencies"_s, u"+ PrintableDisc GlossyPrintableDisc"_s,
                               u"- "_s + kShownOthers}));
}

TEST(ShownMedia, OnOtherPaperHaveNoDisc)
{
    EXPECT_EQ(words(shownMedia(false, false)),
              QStringList({u"+ Transparencies"_s, u"- PrintableDisc GlossyPrintableDisc"_s}));
}

TEST(ShownMedia, WithoutBordersHaveNoTransparencies)
{
    EXPECT_EQ(words(shownMedia(false, true)),
              QStringList({u"- Transparencies"_s, u"- PrintableDisc GlossyPrintableDisc"_s}));
}

} // namespace
