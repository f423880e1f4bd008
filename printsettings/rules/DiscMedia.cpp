#include "printsettings/rules/DiscMedia.h"

using namespace Qt::StringLiterals;

namespace {

const QStringList &constrainedDiscs()
{
    static const QStringList media = {u"PrintableDisc"_s};
    return media;
}

const QStringList &constrainedOthers()
{
    static const QStringList media = {u"Plain"_s,          u"PlainDuplex"_s,      u"Inkjet"_s,
                                      u"VelkaroGlossyR"_s, u"VelkaroQM41Matte"_s, u"Glossy"_s,
                                      u"HagakiAtena"_s,    u"HagakiUra"_s};
    return media;
}

const QStringList &shownDiscs()
{
    static const QStringList media = {u"PrintableDisc"_s, u"GlossyPrintableDisc"_s};
    return media;
}

const QStringList &shownOthers()
{
    static const QStringList media = {
        u"Plain"_s,          u"Inkjet"_s,           u"Transparencies"_s,
        u"VelkaroGlossyR"_s, u"VelkaroQM41Matte"_s, u"Glossy"_s,
        u"HagakiAtena"_s,    u"HagakiUra"_s};
    return media;
}

} // namespace

std::vector<MediaChange> constrainedMedia(bool discPaper)
{
    if (discPaper)
        return {{constrainedDiscs(), true, true}, {constrainedOthers(), false, false}};
    return {{constrainedDiscs(), false, false}, {constrainedOthers(), true, true}};
}

std::vector<MediaChange> shownMedia(bool discPaper, bool borderlessPaper)
{
    std::vector<MediaChange> changes = {
        {{u"Transparencies"_s}, !borderlessPaper && !discPaper, false},
        {shownDiscs(), discPaper, false},
    };
    if (discPaper)
        changes.push_back({shownOthers(), false, false});
    return changes;
}
